#include "tool_windows.h"

#include "forms/model/scripted_user_interface.h"
#include "frame/model/shared_stores.h"
#include "tools/flow/model/gas_density_model.h"
#include "tools/flow/ui/flow_dialogs.h"
#include "tools/piping/model/reducer_model.h"
#include "tools/piping/model/roughness_model.h"
#include "tools/piping/ui/piping_dialogs.h"
#include "tools/properties/ui/property_dialogs.h"

#include <QCoreApplication>

using namespace kestrova;

namespace {

// A dialog tool's window over its model, handed to `check`.
template <typename Window, typename Model>
void checkWindow(Model& model, ScriptedUserInterface& ui, const std::function<void(QDialog&)>& check)
{
    Window window(model, ui, nullptr);
    check(window);
}

// The same after the model's load, for the tools whose form loads.
template <typename Window, typename Model>
void checkLoadedWindow(Model& model, ScriptedUserInterface& ui, const std::function<void(QDialog&)>& check)
{
    model.Form_Load();
    checkWindow<Window>(model, ui, check);
}

} // namespace

void forEachDialogTool(const std::function<void(QDialog&)>& check)
{
    resetSharedStores();
    ScriptedUserInterface ui;
    const QString folder = QCoreApplication::applicationDirPath();
    GasDensityModel density(ui);
    checkLoadedWindow<frmGasDensity>(density, ui, check);
    CompressFactorModel z(ui, nullptr);
    checkLoadedWindow<frmCompressFactor>(z, ui, check);
    HeatCapRatioModel ratio(ui);
    checkWindow<frmHeatCapRatio>(ratio, ui, check);
    FlowConversionsModel flow(nullptr);
    checkLoadedWindow<frmFlowConversions>(flow, ui, check);
    PipeModel pipes(ui, nullptr, folder);
    checkLoadedWindow<frmPipe>(pipes, ui, check);
    RoughnessModel roughness(ui, nullptr);
    checkLoadedWindow<frmRoughness>(roughness, ui, check);
    MinorLossesModel losses(ui);
    checkLoadedWindow<frmMinorLosses>(losses, ui, check);
    ReducerModel reducer(ReducerKind::Contraction, ui);
    checkLoadedWindow<frmReducer>(reducer, ui, check);
    PhysicalPropertiesModel properties(ui, readCompounds(folder + "/compounds.sqlite"));
    checkWindow<frmPhysicalProperties>(properties, ui, check);
}
