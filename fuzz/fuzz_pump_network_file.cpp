// The pump network tool's project file reader (kind 3), opened as File Open
// opens it: a message or the network, never a crash, and no field or grid
// cell that reads "nan" or "inf", after the open and after an edit.

#include "fuzz_support.h"

#include "frame/model/shared_stores.h"
#include "forms/model/scripted_user_interface.h"
#include "tools/pump_network/model/pump_network_model.h"

namespace {

void requireShowable(const kestrova::PumpNetworkModel& tool)
{
    for (const kestrova::TextControl& field : tool.view().txtData)
        kestrova::fuzz::requireShowable(field.text, "a pump network field");
    kestrova::fuzz::requireShowable(tool.view().txtHydraulicEff.text, "the pump efficiency");
    kestrova::fuzz::requireShowable(tool.view().txtMinValvePercentdP.text, "the percent of line drop");
    for (const auto& row : tool.view().grid)
        for (const std::string& cell : row)
            kestrova::fuzz::requireShowable(cell, "a pump network grid cell");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    using namespace kestrova;
    fuzz::ensureApplication();
    const QString path = fuzz::projectFile(3, data, size);
    resetSharedStores();
    ScriptedUserInterface ui;
    PumpNetworkModel tool(ui);
    tool.Form_Load();
    tool.Form_Activate();
    tool.setStrFileName(path.toStdString());
    if (!tool.OpenSaveData("Open"))
        return 0;
    requireShowable(tool);
    tool.commit(pump_network::txtData(pump_network::Line5Flow), "1,000");
    tool.setUnit(pump_network::kFields + 1, 5); // the grid's ID row in m
    requireShowable(tool);
    return 0;
}
