#include "forms/model/help_contexts.h"

#include <algorithm>

namespace kestrova::help {

const std::vector<Topic>& topics()
{
    static const std::vector<Topic> table{
        {Contents, "index.html"},
        {PressureDropLiquid, "pressure-drop-liquid.html"},
        {PressureDropGas, "pressure-drop-gas.html"},
        {PressureDropTwoPhase, "pressure-drop-two-phase.html"},
        {PumpNetwork, "pump-network.html"},
        {PumpSegmentInput, "pump-network.html#segment-dialog"},
        {OrificeLiquid, "orifice-plates.html"},
        {OrificeGas, "orifice-plates.html#gas"},
        {FlowConversions, "flow-conversions.html"},
        {GasDensity, "gas-density.html"},
        {PipeSizes, "pipe-sizes-roughness.html"},
        {Roughness, "pipe-sizes-roughness.html#roughness"},
        {MinorLosses, "minor-losses.html"},
        {Contractions, "contractions-enlargements.html"},
        {Enlargements, "contractions-enlargements.html#enlargements"},
        {PhysicalProperties, "physical-properties.html"},
        {Compressibility, "compressibility.html"},
        {HeatCapacityRatio, "heat-capacity-ratio.html"},
        {RegimeMapHorizontal, "flow-regime-maps.html"},
        {RegimeMapVertical, "flow-regime-maps.html#vertical"},
        {UnitsOfMeasure, "units-of-measure.html"},
        {CompanyInformation, "files-and-printing.html#company"},
    };
    return table;
}

std::string pageOf(int context)
{
    const auto& table = topics();
    const auto found = std::find_if(table.begin(), table.end(), [context](const Topic& t) { return t.context == context; });
    return found == table.end() ? "index.html" : found->page;
}

} // namespace kestrova::help
