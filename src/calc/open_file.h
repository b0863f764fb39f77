#pragma once
// kestrova-calc --open FILE.ksv: a project file opened in its tool model as
// File Open does, recalculated and reported as one response object.

#include <string>

namespace kestrova::calc {

// The response line; `ok` tells whether the file was opened.
std::string openProjectFile(const std::string& path, bool& ok);

} // namespace kestrova::calc
