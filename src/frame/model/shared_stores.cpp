#include "frame/model/shared_stores.h"

#include "forms/store/global_units.h"
#include "tools/piping/model/minor_loss_store.h"
#include "tools/piping/model/pipe_selection.h"
#include "tools/properties/model/phys_props.h"

namespace kestrova {

void resetSharedStores()
{
    globalUnits() = GlobalUnits{};
    minorLossStore() = MinorLossStore{};
    CurrentLine() = 0;
    physProps() = PhysProps{};
    propertiesCancelled() = false;
    pipeToolRoughness() = 0.0;
}

} // namespace kestrova
