#pragma once
#include "tools/c/ui/view.h"
