// The pressure drop window's controls as the tool holds them: the role of
// each field, the state each control starts in, and the narrow way the
// window reaches the tool's event routines by control.

#include "forms/model/help_contexts.h"
#include "forms/model/user_interface.h"
#include "tools/pressure_drop/model/pressure_drop_model.h"


#include <map>

namespace kestrova {

using namespace pressure_drop;

namespace {

// The role of each field: the results are read-only, the inputs take a
// number with a sign; of the plain displays, the K fields and the molecular
// weight, compressibility and k take a number, the rest are results.
bool isResultField(int field)
{
    switch (field) {
    case LiquidVelocity: case LiquidPressureDrop: case InletVelocity: case ExitVelocity: case InletDensity:
    case ExitDensity: case SonicVelocity: case ExitTemperature: case GasPressureDrop: case ExitPressure:
    case TwoPhaseLiquidVelocity: case TwoPhaseVaporVelocity: case AverageDensity: case AverageViscosity:
    case AverageVelocity: case TwoPhasePressureDrop:
        return true;
    default:
        return false;
    }
}

FieldRole fieldRole(int field)
{
    return isResultField(field) ? kResult : FieldRole{true, KeyRule::SignedNumber, FieldShade::Normal};
}

FieldRole displayRole(int display)
{
    switch (display) {
    case LiquidK1: case LiquidK2: case LiquidK3: case GasK1: case GasK2: case GasK3:
        return {true, KeyRule::Number, FieldShade::Tinted};
    case MolecularWeight: case Compressibility: case HeatCapacityRatio:
        return {true, KeyRule::Number, FieldShade::Normal};
    default:
        return kResult;
    }
}

constexpr FieldRole kTextRole{true, KeyRule::Text, FieldShade::Normal};

// The widest text of each plain display, from its mask or its words.
std::string displaySample(int display)
{
    switch (display) {
    case LiquidK1: case GasK1: return maskSample("#,###,##0");
    case LiquidK2: case LiquidK3: case GasK2: case GasK3: return maskSample("##0.00");
    case LiquidReynolds: case GasReynolds: return maskSample("#,###,###");
    case TwoPhaseLiquidReynolds: case TwoPhaseVaporReynolds: return maskSample("###,###,###");
    case LiquidFriction: case GasFriction: return maskSample("0.00000");
    case InletMach: case OutletMach: return maskSample("#0.0000");
    case LiquidRegime: case TwoPhaseLiquidRegime: case TwoPhaseVaporRegime: return "Turbulent";
    case TwoPhaseRegime: return "Dispersed Bubble";
    default: return "-8888.88888"; // molecular weight, Z, k as typed
    }
}

const std::map<int, const char*>& tableTips()
{
    static const std::map<int, const char*> tips{
        {LiquidPipeTable, "Pipe/Tube Diameter Table"}, {GasPipeTable, "Pipe/Tube Diameter Table"},
        {TwoPhasePipeTable, "Pipe/Tube Diameter Table"}, {LiquidRoughnessTable, "Roughness Table"},
        {GasRoughnessTable, "Roughness Table"}, {TwoPhaseRoughnessTable, "Roughness Table"},
        {LiquidMinorLossTable, "Minor Fitting Loss Table"}, {GasMinorLossTable, "Minor Fitting Loss Table"},
        {LiquidOuterTable, "Show Table"}, {LiquidInnerTable, "Show Table"}, {GasOuterTable, "Show Table"},
        {GasInnerTable, "Show Table"}, {CompressibilityTool, "Compute Z"},
        {HeatCapacityRatioTool, "Compute the Specific Heat Ratio, k"}, {RegimeMap, "Open Flow Regime Map"},
        {LiquidFlowConversion, "Flow Rate Conversions"}, {GasFlowConversion, "Flow Rate Conversions"},
        {TwoPhaseLiquidFlowConversion, "Flow Rate Conversions"}, {TwoPhaseVaporFlowConversion, "Flow Rate Conversions"},
        {GasDensityTool, "Compute Gas Density"}};
    return tips;
}

} // namespace

PressureDropModel::PressureDropModel(UserInterface& ui, QObject* parent) : FormModel(parent), ui_(ui)
{
    for (int i = 0; i < kPressureDropFields; ++i) {
        txtData[static_cast<size_t>(i)] = controlOf(fieldRole(i));
        txtData[static_cast<size_t>(i)].widest = widestText(*pressureDropField(i).kind);
        cboUnits[static_cast<size_t>(i)].tabStop = false; // Tab walks the fields, not their units
    }
    for (int i = 0; i < kDisplays; ++i) {
        txtDisplay[static_cast<size_t>(i)] = controlOf(displayRole(i));
        txtDisplay[static_cast<size_t>(i)].widest = displaySample(i);
    }
    for (auto* texts : {&txtProject, &txtTag})
        for (TextControl& text : *texts)
            text = controlOf(kTextRole);
    txtLiquid = txtGas = controlOf(kTextRole);
    Label1 = {{3, {"Pipe/Tube Diameter:"}}, {4, {"Width of Conduit:"}}, {7, {"Height of Conduit:"}},
              {9, {"K1, K2, K3:"}},         {19, {"Pipe/Tube Diameter:"}}, {28, {"K1, K2, K3:"}},
              {43, {"Width:"}},             {52, {"Height:"}}};
    Frame1 = {{{"Fluid Data"}, {"Pipe/Tube Data"}, {"Calculated Results"}, {"Fluid Data"}, {"Pipe/Tube Data"},
               {"Calculated Results"}, {"Fluid Data"}, {"Pipe/Tube Data"}, {"Calculated Results"}}};
    for (const auto& [index, tip] : tableTips())
        cmdTable[static_cast<size_t>(index)] = {"...", true, false, false, tip};
    cmdTable[RegimeMap].caption = kArrowCaption;
    showOptions();
    showFluidNames();
    registerControls();
}

void PressureDropModel::registerControls()
{
    ControlRegistry& all = controls();
    all.family("txtData", txtData);
    all.family("cboUnits", cboUnits);
    all.family("txtDisplay", txtDisplay);
    all.family("txtProject", txtProject);
    all.family("txtTag", txtTag);
    all.add(pressure_drop::txtLiquid, txtLiquid);
    all.add(pressure_drop::txtGas, txtGas);
    all.add(lblTwoPhaseFluids, twoPhaseFluids);
    for (auto& [index, label] : Label1)
        all.add(pressure_drop::Label1(index), label);
    all.family("Frame1", Frame1);
    all.family("cmdTable", cmdTable);
    all.family("optCrossSection", optCrossSection);
    all.family("optCalcType", optCalcType);
    all.family("optOrientation", optOrientation);
    all.add(pressure_drop::SSTab1, SSTab1);
}

// --- the window's way in -----------------------------------------------------------------

void PressureDropModel::commit(const Control& field, const std::string& text)
{
    if (field.family == "txtData") {
        if (TextControl* data = elementOf(txtData, field)) {
            data->text = text;
            txtData_LostFocus(field.index);
        }
    } else if (field.family == "txtDisplay") {
        if (TextControl* display = elementOf(txtDisplay, field)) {
            display->text = text;
            txtDisplay_LostFocus(field.index);
        }
    } else if (TextControl* plain = controls().find(field, controls().texts)) {
        ChangeNotice notice(*this);
        plain->text = text;
        if (field == pressure_drop::txtLiquid)
            liquidName = text;
        else if (field == pressure_drop::txtGas)
            gasName = text;
        showFluidNames();
    }
}

void PressureDropModel::click(const Control& control)
{
    if (control.family == "optCrossSection")
        optCrossSection_Click(control.index);
    else if (control.family == "optCalcType")
        optCalcType_Click(control.index);
    else if (control.family == "optOrientation")
        optOrientation_Click(control.index);
    else if (control.family == "cmdTable")
        cmdTable_Click(control.index);
    else if (control.family == "cmdProperties")
        cmdProperties_Click(control.index);
    else if (control.family == "cmdReset")
        cmdReset_Click(control.index);
    else if (control.family == "cmdHelp")
        ui_.showHelp(help::PressureDropLiquid + 10 * std::clamp(control.index, 0, 2));
}

void PressureDropModel::choose(const Control& list, int entry)
{
    if (list.family == "cboUnits")
        setUnit(list.index, static_cast<UnitIndex>(entry));
    else if (list == pressure_drop::SSTab1)
        SSTab1_Click(entry);
}

void PressureDropModel::keyTyped(const Control&)
{
    Form_KeyPress();
}

} // namespace kestrova
