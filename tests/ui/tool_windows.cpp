#include "tool_windows.h"

#include "forms/model/scripted_user_interface.h"
#include "forms/store/global_units.h"
#include "tools/flow/model/gas_density_model.h"
#include "tools/flow/ui/flow_dialogs.h"
#include "tools/piping/model/minor_loss_store.h"
#include "tools/piping/model/reducer_model.h"
#include "tools/piping/model/roughness_model.h"
#include "tools/piping/ui/piping_dialogs.h"
#include "tools/properties/ui/property_dialogs.h"

#include <QCoreApplication>

using namespace kestrova;

void forEachDialogTool(const std::function<void(QDialog&)>& check)
{
    globalUnits() = GlobalUnits{};
    minorLossStore() = MinorLossStore{};
    ScriptedUserInterface ui;
    const QString folder = QCoreApplication::applicationDirPath();
    GasDensityModel density(ui);
    density.Form_Load();
    frmGasDensity densityWindow(density, ui, nullptr);
    check(densityWindow);
    CompressFactorModel z(ui, nullptr);
    z.Form_Load();
    frmCompressFactor zWindow(z, ui, nullptr);
    check(zWindow);
    HeatCapRatioModel ratio(ui);
    frmHeatCapRatio ratioWindow(ratio, ui, nullptr);
    check(ratioWindow);
    FlowConversionsModel flow(nullptr);
    flow.Form_Load();
    frmFlowConversions flowWindow(flow, ui, nullptr);
    check(flowWindow);
    PipeModel pipes(ui, nullptr, folder);
    pipes.Form_Load();
    frmPipe pipesWindow(pipes, ui, nullptr);
    check(pipesWindow);
    RoughnessModel roughness(ui, nullptr);
    roughness.Form_Load();
    frmRoughness roughnessWindow(roughness, ui, nullptr);
    check(roughnessWindow);
    MinorLossesModel losses(ui);
    losses.Form_Load();
    frmMinorLosses lossesWindow(losses, ui, nullptr);
    check(lossesWindow);
    ReducerModel reducer(ReducerKind::Contraction, ui);
    reducer.Form_Load();
    frmReducer reducerWindow(reducer, ui, nullptr);
    check(reducerWindow);
    PhysicalPropertiesModel properties(ui, readCompounds(folder + "/compounds.sqlite"));
    frmPhysicalProperties propertiesWindow(properties, ui, nullptr);
    check(propertiesWindow);
}
