// The compound data base reader: any file named as the data base is tested,
// read, and its compounds shown and applied as a user would, without a crash
// and without a value that reads "nan" or "inf".

#include "fuzz_support.h"

#include "forms/store/global_units.h"
#include "forms/model/scripted_user_interface.h"
#include "tools/properties/model/compound_data_base.h"
#include "tools/properties/model/phys_props.h"
#include "tools/properties/model/physical_properties_model.h"

#include <stdexcept>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    using namespace kestrova;
    fuzz::ensureApplication();
    const QString path = fuzz::scratchFile("compounds.sqlite", data, size);
    (void)isCompoundDataBase(path);
    std::vector<Compound> compounds;
    try {
        compounds = readCompounds(path);
    } catch (const std::runtime_error&) {
        return 0;
    }
    globalUnits() = GlobalUnits{};
    ScriptedUserInterface ui;
    PhysicalPropertiesModel tool(ui, std::move(compounds));
    tool.Form_Activate();
    const int shown = std::min<int>(static_cast<int>(tool.compounds().size()), 16);
    const PhysicalPropertiesState& shownState = tool.view();
    for (int position = 0; position < shown; ++position) {
        tool.dbcComp_Click(position);
        for (const TextControl& property : shownState.txtPhysProp)
            fuzz::requireShowable(property.text, "a property");
        for (size_t row = 0; row < shownState.txtLTL.size(); ++row) {
            fuzz::requireShowable(shownState.txtLTL[row].text, "a lower limit");
            fuzz::requireShowable(shownState.txtUTL[row].text, "an upper limit");
        }
        tool.GetPhysicalProperties(position % 2 ? FluidKind::Gas : FluidKind::Liquid, 77, [&] { tool.cmdSelect_Click(); });
    }
    return 0;
}
