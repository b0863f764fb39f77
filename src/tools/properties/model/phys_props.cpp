#include "tools/properties/model/phys_props.h"

#include "forms/model/user_interface.h"

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

bool fetchGasProperties(UserInterface& ui, const char* title, bool dataBaseValid, Single temperature)
{
    if (!dataBaseValid) {
        ui.ask(title, "The physical properties data base cannot be found. Use File, Locate Data Base to choose it.",
               MessageIcon::Warning, MessageButtons::Ok, MessageAnswer::Ok);
        return false;
    }
    propertiesCancelled() = false;
    propertiesCancelled() = !ui.GetPhysicalProperties(FluidKind::Gas, temperature);
    return !propertiesCancelled();
}

} // namespace kestrova
