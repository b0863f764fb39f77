#include "tools/properties/model/phys_props.h"

namespace kestrova {

PhysProps& physProps()
{
    static PhysProps record;
    return record;
}

bool& propertiesCancelled()
{
    static bool cancelled = false;
    return cancelled;
}

} // namespace kestrova
