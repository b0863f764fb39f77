// The dialog tools of the desktop program, each made in one place: its model
// loaded as its form loads, and its window over the model. The Tools menu
// shows a tool by itself through the table below; a document tool borrows
// it through the entry point of its model, on the same made tool.

#include "frame/ui/gui_user_interface.h"

#include "forms/store/program_files.h"
#include "forms/store/settings_store.h"
#include "frame/model/frame_model.h"
#include "frame/ui/frmMain.h"
#include "tools/flow/ui/flow_dialogs.h"
#include "tools/pump_network/model/pump_segment_input_model.h"
#include "tools/pump_network/ui/frmPumpSystem.h"
#include "tools/piping/model/minor_loss_store.h"
#include "tools/piping/ui/piping_dialogs.h"
#include "tools/properties/model/phys_props.h"
#include "tools/properties/ui/property_dialogs.h"


#include <map>
#include <optional>

namespace kestrova {

namespace {

const char* kNoDataBase = "The physical properties data base cannot be found. Use File, Locate Data Base to choose it.";

// A model loaded as its form loads, before its window is made over it.
template <typename Model>
Model& loaded(Model& model)
{
    model.Form_Load();
    return model;
}

struct PipeTool {
    explicit PipeTool(GuiUserInterface& ui)
        : model(ui, &ui.frame().settings(), programDataFolder()), window(loaded(model), ui, &ui.frame())
    {
        model.Form_Activate();
    }
    PipeModel model;
    frmPipe window;
};

struct RoughnessTool {
    explicit RoughnessTool(GuiUserInterface& ui)
        : model(ui, &ui.frame().settings()), window(loaded(model), ui, &ui.frame())
    {
        model.Form_Activate();
    }
    RoughnessModel model;
    frmRoughness window;
};

struct MinorLossesTool {
    explicit MinorLossesTool(GuiUserInterface& ui) : model(ui), window(loaded(model), ui, &ui.frame()) {}
    MinorLossesModel model;
    frmMinorLosses window;
};

struct ReducerTool {
    ReducerTool(ReducerKind kind, GuiUserInterface& ui)
        : model(kind, ui), window(loaded(model), ui, &ui.frame())
    {
    }
    ReducerModel model;
    frmReducer window;
};

struct CompressFactorTool {
    explicit CompressFactorTool(GuiUserInterface& ui)
        : model(ui, &ui.frame().settings(), ui.frame().model().dataBaseFileValid()),
          window(loaded(model), ui, &ui.frame())
    {
    }
    CompressFactorModel model;
    frmCompressFactor window;
};

struct HeatCapRatioTool {
    explicit HeatCapRatioTool(GuiUserInterface& ui)
        : model(ui, ui.frame().model().dataBaseFileValid()), window(model, ui, &ui.frame())
    {
    }
    HeatCapRatioModel model;
    frmHeatCapRatio window;
};

struct FlowConversionsTool {
    explicit FlowConversionsTool(GuiUserInterface& ui)
        : model(&ui.frame().settings()), window(loaded(model), ui, &ui.frame())
    {
    }
    ~FlowConversionsTool() { model.Form_Unload(); }
    FlowConversionsModel model;
    frmFlowConversions window;
};

struct GasDensityTool {
    explicit GasDensityTool(GuiUserInterface& ui) : model(ui), window(loaded(model), ui, &ui.frame())
    {
        model.Form_Activate();
    }
    GasDensityModel model;
    frmGasDensity window;
};

// The physical properties tool reads its data base as it is made; a data
// base that cannot be read is told, and no tool is made.
struct PhysicalPropertiesTool {
    PhysicalPropertiesTool(GuiUserInterface& ui, std::vector<Compound> compounds)
        : model(ui, std::move(compounds)), window(model, ui, &ui.frame())
    {
    }
    static std::unique_ptr<PhysicalPropertiesTool> make(GuiUserInterface& ui)
    {
        std::vector<Compound> compounds;
        try {
            const BusyPointer busy(ui);
            compounds = readCompounds(QString::fromStdString(ui.frame().model().dataBaseLocation()));
        } catch (const std::exception& error) {
            ui.ask("Physical Properties", error.what(), MessageIcon::Stop, MessageButtons::Ok, MessageAnswer::Ok);
            return nullptr;
        }
        return std::make_unique<PhysicalPropertiesTool>(ui, std::move(compounds));
    }
    PhysicalPropertiesModel model;
    frmPhysicalProperties window;
};

// The Tools menu's dialog tools, each shown by itself.
const std::map<std::string, std::function<void(GuiUserInterface&)>>& standaloneTools()
{
    static const std::map<std::string, std::function<void(GuiUserInterface&)>> tools{
        {"mnuToolsPipeData", [](GuiUserInterface& ui) { PipeTool(ui).window.runModal(); }},
        {"mnuToolsRoughness", [](GuiUserInterface& ui) { RoughnessTool(ui).window.runModal(); }},
        {"mnuToolsMinorLosses",
         [](GuiUserInterface& ui) {
             CurrentLine() = 0;
             MinorLossesTool(ui).window.runModal();
         }},
        {"mnuToolsFlowConversions", [](GuiUserInterface& ui) { FlowConversionsTool(ui).window.runModal(); }},
        {"mnuToolsGasDensity", [](GuiUserInterface& ui) { GasDensityTool(ui).window.runModal(); }},
        {"mnuToolsCompressFactor", [](GuiUserInterface& ui) { CompressFactorTool(ui).window.runModal(); }},
        {"mnuToolsHeatCapRatio", [](GuiUserInterface& ui) { HeatCapRatioTool(ui).window.runModal(); }},
        {"mnuToolsPP",
         [](GuiUserInterface& ui) {
             if (auto tool = PhysicalPropertiesTool::make(ui))
                 tool->window.runModal();
         }},
    };
    return tools;
}

} // namespace

bool GuiUserInterface::showTool(const std::string& menuName)
{
    const auto found = standaloneTools().find(menuName);
    if (found == standaloneTools().end())
        return false;
    found->second(*this);
    return true;
}

Single GuiUserInterface::SelectPipeID(const std::string& selector)
{
    PipeTool tool(*this);
    return tool.model.SelectPipeID(selector, [&] { tool.window.runModal(); });
}

Single GuiUserInterface::SelectRoughness()
{
    RoughnessTool tool(*this);
    return tool.model.SelectRoughness([&] { tool.window.runModal(); });
}

void GuiUserInterface::GetKValue()
{
    MinorLossesTool tool(*this);
    tool.model.GetKValue([&] { tool.window.runModal(); });
}

Single GuiUserInterface::GetContractionK()
{
    ReducerTool tool(ReducerKind::Contraction, *this);
    return tool.model.GetK([&] { tool.window.runModal(); });
}

Single GuiUserInterface::GetEnlargementK()
{
    ReducerTool tool(ReducerKind::Enlargement, *this);
    return tool.model.GetK([&] { tool.window.runModal(); });
}

Single GuiUserInterface::GetZValue(Single temperature, Single pressure)
{
    CompressFactorTool tool(*this);
    return tool.model.GetZValue(temperature, pressure, [&] { tool.window.runModal(); });
}

Single GuiUserInterface::GetHeatCapRatioValue(Single temperature, Single pressure)
{
    HeatCapRatioTool tool(*this);
    return tool.model.GetHeatCapRatioValue(temperature, pressure, [&] { tool.window.runModal(); });
}

Single GuiUserInterface::GetFlowrateConversion(int fluid)
{
    FlowConversionsTool tool(*this);
    return tool.model.GetFlowrateConversion(fluid, [&] { tool.window.runModal(); });
}

Single GuiUserInterface::GetGasDensity(Single temperature, Single pressure)
{
    GasDensityTool tool(*this);
    return tool.model.GetGasDensity(temperature, pressure, [&] { tool.window.runModal(); });
}

bool GuiUserInterface::GetPhysicalProperties(FluidKind fluid, Single temperature)
{
    frame().model().MDIForm_Activate();
    if (!frame().model().dataBaseFileValid()) {
        ask("Physical Properties", kNoDataBase, MessageIcon::Warning, MessageButtons::Ok, MessageAnswer::Ok);
        return false;
    }
    const auto tool = PhysicalPropertiesTool::make(*this);
    if (!tool)
        return false;
    tool->model.GetPhysicalProperties(fluid, temperature, [&] { tool->window.runModal(); });
    return !propertiesCancelled();
}

// The segment dialog runs on the model the pump network tool made for it.
void GuiUserInterface::PumpSystemData(FormModel& segmentInput)
{
    auto& model = dynamic_cast<PumpSegmentInputModel&>(segmentInput);
    frmPumpSystemInput window(model, *this, &frame());
    window.runModal();
}

} // namespace kestrova
