#include "forms/model/controls.h"

namespace kestrova {

std::string Control::name() const
{
    std::string text(family);
    if (index >= 0)
        text += "(" + std::to_string(index) + ")";
    return text;
}

} // namespace kestrova
