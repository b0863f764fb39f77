#pragma once
// What the pipe size tool leaves for its caller besides the diameter it
// returns: the roughness of the material last shown, in feet.

#include "numeric/single.h"

namespace kestrova {

Single& pipeToolRoughness();

} // namespace kestrova
