#include "forms/model/controls.h"

namespace kestrova {

std::string Control::name() const
{
    std::string text(family);
    if (index >= 0)
        text.append(1, '(').append(std::to_string(index)).append(1, ')');
    return text;
}

} // namespace kestrova
