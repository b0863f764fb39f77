#pragma once
// The unit lists. A pick list's tag names its quantity, and the order of the
// list is the meaning of a unit index (basConversions). A tag that is not a
// quantity gives an empty list.

#include <string>
#include <string_view>
#include <vector>

namespace kestrova {

const std::vector<std::string>& unitList(std::string_view tag);

// Every tag that has a list, in the order of the unit table.
const std::vector<std::string>& unitTags();

} // namespace kestrova
