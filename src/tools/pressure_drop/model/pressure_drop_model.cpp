// The pressure drop tool's events: load and activation, field commits, unit
// lists, cross sections, the data buttons, reset and closing.

#include "tools/pressure_drop/model/pressure_drop_model.h"

#include "forms/model/user_interface.h"
#include "forms/store/global_units.h"
#include "numeric/display_mask.h"
#include "numeric/field_text.h"
#include "numeric/numeric_fault.h"
#include "tools/piping/model/minor_loss_store.h"
#include "tools/piping/model/pipe_selection.h"
#include "tools/properties/model/phys_props.h"
#include "units/basLoadUnits.h"

namespace kestrova {

using namespace pressure_drop;

namespace {


// The controls of one tab's cross section options.
struct SectionControls {
    int diameter, width, height;
    int diameterLabel, widthLabel, heightLabel, kLabel;
    const char* widthCaption;
    const char* heightCaption;
    std::array<int, 3> kFields;
    int pipeTable, roughnessTable, minorLossTable, outerTable, innerTable;
};

const SectionControls kLiquidSection{LiquidDiameter, LiquidConduitWidth, LiquidConduitHeight, 3, 4, 7, 9,
                                     "Width of Conduit:", "Height of Conduit:", kLiquidKFields, LiquidPipeTable,
                                     LiquidRoughnessTable, LiquidMinorLossTable, LiquidOuterTable, LiquidInnerTable};
const SectionControls kGasSection{GasDiameter, GasConduitWidth, GasConduitHeight, 19, 43, 52, 28, "Width:", "Height:",
                                  kGasKFields, GasPipeTable, GasRoughnessTable, GasMinorLossTable, GasOuterTable,
                                  GasInnerTable};

std::vector<int> inputFieldsOfTab(int tab)
{
    switch (tab) {
    case LiquidTab:
        return {LiquidFlow, LiquidDensity, LiquidViscosity, LiquidConduitWidth, LiquidConduitHeight, LiquidDiameter,
                LiquidRoughness, ElevationChange, LiquidLength, LiquidTemperature};
    case GasTab:
        return {GasFlow, InletPressure, InletTemperature, GasViscosity, GasDiameter, GasRoughness, GasLength,
                GasConduitHeight, GasConduitWidth};
    default:
        return {TwoPhaseLiquidViscosity, TwoPhaseLiquidDensity, TwoPhaseLiquidFlow, SurfaceTension, TwoPhaseVaporFlow,
                TwoPhaseVaporDensity, TwoPhaseVaporViscosity, TwoPhaseLength, TwoPhaseRoughness, TwoPhaseDiameter,
                TwoPhaseTemperature};
    }
}

} // namespace

// --- load, activation, tabs --------------------------------------------------------

void PressureDropModel::Form_Load()
{
    ChangeNotice notice(*this);
    for (auto& list : cboUnits)
        list.listIndex = 0;
    record.InletTemperature = 77.0;
    record.PipeLength = startPipeLength();
    for (int k : {LiquidK1, LiquidK2, LiquidK3, GasK1, GasK2, GasK3})
        txtDisplay[static_cast<size_t>(k)].text = "0";
    crossSectionLiquid = 0;
    crossSectionGas = 3;
    calcType = 0;
    orientation = 0;
    showOptions();
    applyCrossSection(true, 0);
    applyCrossSection(false, 0);
    for (int i = 0; i < kPressureDropFields; ++i)
        showField(i);
    DirtyFlag = false;
}

void PressureDropModel::Form_Activate()
{
    ChangeNotice notice(*this);
    applyGlobalUnits();
    ui_.setStatusText(kStatusTitle);
    active_ = true;
    ui_.setToolbarButtonEnabled("Print", true);
    ui_.setToolbarButtonEnabled("Save", DirtyFlag);
    tabChange();
}

Single PressureDropModel::startPipeLength() const
{
    return globalUnits()[Quantity::Length] < 3 ? 100.0 : 328.083984375;
}

void PressureDropModel::applyGlobalUnits()
{
    for (int i = 0; i < kPressureDropFields; ++i) {
        cboUnits[static_cast<size_t>(i)].listIndex = globalUnits()[pressureDropField(i).setup];
        showField(i);
    }
}

void PressureDropModel::SSTab1_Click(int newTab)
{
    ChangeNotice notice(*this);
    selectTab(newTab);
    tabChange();
}

void PressureDropModel::selectTab(int newTab)
{
    ChangeNotice notice(*this);
    tab = std::clamp(newTab, 0, 2);
    SSTab1.listIndex = tab;
}

void PressureDropModel::tabChange()
{
    for (auto& field : txtData)
        field.tabStop = false;
    for (int i : {MolecularWeight, Compressibility, HeatCapacityRatio})
        txtDisplay[static_cast<size_t>(i)].tabStop = false;
    for (int t = 0; t < 3; ++t)
        txtProject[static_cast<size_t>(t)].tabStop = txtTag[static_cast<size_t>(t)].tabStop = (t == tab);
    for (int i : inputFieldsOfTab(tab))
        txtData[static_cast<size_t>(i)].tabStop = true;
    if (tab == GasTab)
        for (int i : {MolecularWeight, Compressibility, HeatCapacityRatio})
            txtDisplay[static_cast<size_t>(i)].tabStop = true;
    helpContext = 1190 + 10 * tab;
    if (active_)
        requestFocus(pressure_drop::txtProject(tab));
    for (int i = 0; i <= TwoPhasePressureDrop; ++i)
        showField(i);
    CalculateResults();
}

// --- fields and unit lists -----------------------------------------------------------

void PressureDropModel::setUnit(int index, UnitIndex listIndex)
{
    if (index < 0 || index >= kPressureDropFields)
        return;
    ChangeNotice notice(*this);
    cboUnits[static_cast<size_t>(index)].listIndex = listIndex;
    showField(index);
}

void PressureDropModel::showField(int index)
{
    if (index < 0 || index >= kPressureDropFields)
        return;
    const auto i = static_cast<size_t>(index);
    showUnitField(pressureDropField(index), record, cboUnits[i], txtData[i]);
}

void PressureDropModel::txtData_LostFocus(int index)
{
    if (index < 0 || index >= kPressureDropFields)
        return;
    ChangeNotice notice(*this);
    const auto i = static_cast<size_t>(index);
    commitUnitField(pressureDropField(index), record, cboUnits[i], txtData[i]);
    CalculateResults();
}

void PressureDropModel::commitFieldText(int index, const std::string& text)
{
    if (index < 0 || index >= kPressureDropFields)
        return;
    ChangeNotice notice(*this);
    const auto i = static_cast<size_t>(index);
    txtData[i].text = text;
    commitUnitField(pressureDropField(index), record, cboUnits[i], txtData[i]);
}

void PressureDropModel::txtDisplay_LostFocus(int index)
{
    if (index < 0 || index >= kDisplays)
        return;
    ChangeNotice notice(*this);
    commitDisplayText(index, txtDisplay[static_cast<size_t>(index)].text);
    CalculateResults();
}

void PressureDropModel::commitDisplayText(int index, const std::string& text)
{
    if (index < 0 || index >= kDisplays)
        return;
    ChangeNotice notice(*this);
    TextControl& display = txtDisplay[static_cast<size_t>(index)];
    display.text = text;
    switch (index) {
    case LiquidK1: case GasK1: case LiquidK2: case LiquidK3: case GasK2: case GasK3:
        if (display.text.empty())
            display.text = "0";
        break;
    case MolecularWeight: record.MolecularWeight = fieldSingleOr0(display.text); break;
    case Compressibility: record.Compressibility = fieldSingleOr0(display.text); break;
    case HeatCapacityRatio: record.HeatCapacityRatio = fieldSingleOr0(display.text); break;
    default: break;
    }
}

void PressureDropModel::useRecord(const PressureDropData& taken)
{
    ChangeNotice notice(*this);
    record = taken;
    for (int i = 0; i < kPressureDropFields; ++i)
        showField(i);
}

void PressureDropModel::Form_KeyPress()
{
    ChangeNotice notice(*this);
    setDirty();
}

void PressureDropModel::setDirty()
{
    DirtyFlag = true;
    ui_.setToolbarButtonEnabled("Save", true);
}

// --- options ----------------------------------------------------------------------------

void PressureDropModel::optCrossSection_Click(int index)
{
    if (index < 0 || index > 5)
        return;
    ChangeNotice notice(*this);
    for (int field : {LiquidDiameter, GasDiameter, TwoPhaseDiameter})
        txtData_LostFocus(field);
    selectCrossSection(index);
    setDirty();
    CalculateResults();
    // The diameter fields show the diameter the results now use: after a
    // rectangle or an annulus, the hydraulic diameter it left.
    for (int field : {LiquidDiameter, GasDiameter, TwoPhaseDiameter})
        showField(field);
}

void PressureDropModel::selectCrossSection(int index)
{
    if (index < 0 || index > 5)
        return;
    ChangeNotice notice(*this);
    if (index < 3)
        crossSectionLiquid = index;
    else
        crossSectionGas = index;
    showOptions();
    applyCrossSection(index < 3, index % 3);
}

void PressureDropModel::setKFieldsLook(const std::array<int, 3>& fields, int labelIndex, bool enabled)
{
    for (int k : fields) {
        TextControl& field = txtDisplay[static_cast<size_t>(k)];
        field.enabled = enabled;
        field.shade = enabled ? FieldShade::Tinted : FieldShade::Disabled;
    }
    Label1[labelIndex].grey = !enabled;
}

void PressureDropModel::applyCrossSection(bool liquidSide, int section)
{
    const SectionControls& c = liquidSide ? kLiquidSection : kGasSection;
    const bool circular = section == 0;
    const bool annular = section == 2;
    const auto enableField = [this](int index, bool enabled) {
        txtData[static_cast<size_t>(index)].enabled = enabled;
        txtData[static_cast<size_t>(index)].shade = enabled ? FieldShade::Normal : FieldShade::Disabled;
        cboUnits[static_cast<size_t>(index)].enabled = enabled;
    };
    enableField(c.diameter, circular);
    enableField(c.width, !circular);
    enableField(c.height, !circular);
    Label1[c.diameterLabel].grey = !circular;
    Label1[c.widthLabel].grey = circular;
    Label1[c.heightLabel].grey = circular;
    Label1[c.widthLabel].caption = annular ? "OD of Inner Pipe:" : c.widthCaption;
    Label1[c.heightLabel].caption = annular ? "ID of Outer Pipe:" : c.heightCaption;
    if (section == 1) {
        txtData[static_cast<size_t>(c.width)].toolTip = "Width of Rectangular X-Section";
        txtData[static_cast<size_t>(c.height)].toolTip = "Height of Rectangular X-Section";
    } else if (annular) {
        txtData[static_cast<size_t>(c.width)].toolTip = "OD of Inner Pipe";
        txtData[static_cast<size_t>(c.height)].toolTip = "ID of Outer Pipe";
    }
    setKFieldsLook(c.kFields, c.kLabel, circular);
    cmdTable[static_cast<size_t>(c.pipeTable)].enabled = circular;
    cmdTable[static_cast<size_t>(c.roughnessTable)].enabled = true;
    cmdTable[static_cast<size_t>(c.minorLossTable)].enabled = circular;
    cmdTable[static_cast<size_t>(c.outerTable)].enabled = annular;
    cmdTable[static_cast<size_t>(c.innerTable)].enabled = annular;
    for (int index : {c.width, c.height}) {
        cboUnits[static_cast<size_t>(index)].listIndex = globalUnits()[pressureDropField(index).setup];
        showField(index);
    }
}

void PressureDropModel::optCalcType_Click(int index)
{
    if (index < 0 || index > 1)
        return;
    ChangeNotice notice(*this);
    selectCalcType(index);
    CalculateResults();
    setDirty();
}

void PressureDropModel::selectCalcType(int index)
{
    ChangeNotice notice(*this);
    calcType = std::clamp(index, 0, 1);
    showOptions();
}

void PressureDropModel::optOrientation_Click(int index)
{
    if (index < 0 || index > 2)
        return;
    ChangeNotice notice(*this);
    selectOrientation(index);
    CalculateResults();
}

void PressureDropModel::selectOrientation(int index)
{
    if (index < 0 || index > 2)
        return;
    ChangeNotice notice(*this);
    orientation = index;
    cmdTable[RegimeMap].enabled = index != 2;
    cmdTable[RegimeMap].caption = index == 2 ? kCrossCaption : kArrowCaption;
    showOptions();
}

// The options show the choices; none of them is in the tab order.
void PressureDropModel::showOptions()
{
    const auto option = [](bool checked) {
        ButtonControl button;
        button.checked = checked;
        button.tabStop = false;
        return button;
    };
    for (int i = 0; i < 6; ++i)
        optCrossSection[static_cast<size_t>(i)] = option(i == crossSectionLiquid || i == crossSectionGas);
    for (int i = 0; i < 2; ++i)
        optCalcType[static_cast<size_t>(i)] = option(i == calcType);
    for (int i = 0; i < 3; ++i)
        optOrientation[static_cast<size_t>(i)] = option(i == orientation);
}

// --- reset and closing ------------------------------------------------------------------

void PressureDropModel::cmdReset_Click(int index)
{
    if (index < 0 || index > 2)
        return;
    ChangeNotice notice(*this);
    if (ui_.ask(kTitle, "Reset all input fields?", MessageIcon::Question, MessageButtons::OkCancel,
                MessageAnswer::Ok) == MessageAnswer::Cancel)
        return;
    record.PipeLength = startPipeLength();
    caption = kTitle;
    if (index == LiquidTab)
        resetLiquidCase();
    else if (index == GasTab)
        resetGasCase();
    else
        resetTwoPhaseCase();
    fileName_.clear();
    setDirty();
}

void PressureDropModel::resetLiquidCase()
{
    PressureDropData& r = record;
    showField(LiquidLength);
    r.LiquidFlow = r.LiquidDensity = r.LiquidViscosity = r.Roughness = r.Diameter = r.ConduitWidth =
        r.SurfaceTension = 0.0;
    r.InletTemperature = 77.0;
    for (int i = LiquidFlow; i <= LiquidPressureDrop; ++i)
        txtData[static_cast<size_t>(i)].text = "0";
    for (int k : kLiquidKFields)
        txtDisplay[static_cast<size_t>(k)].text = "0";
    minorLossStore().clearSlot(0);
    for (int i : {LiquidReynolds, LiquidRegime, LiquidFriction})
        txtDisplay[static_cast<size_t>(i)].text.clear();
    for (int i = LiquidFlow; i <= LiquidPressureDrop; ++i)
        showField(i);
    showField(LiquidTemperature);
    Frame1[LiquidFluidFrame].caption = "Fluid Data";
    txtLiquid.text.clear();
    liquidName.clear();
    txtProject[LiquidTab].text.clear();
    txtTag[LiquidTab].text.clear();
    showFluidNames();
}

void PressureDropModel::resetGasCase()
{
    PressureDropData& r = record;
    showField(GasLength);
    r.GasFlow = r.InletPressure = r.ExitPressure = r.SonicVelocity = r.VaporViscosity = r.Roughness =
        r.Diameter = r.GasDensity = r.ExitDensity = r.ExitTemperature = r.Velocity = r.ExitVelocity = 0.0;
    r.InletTemperature = 77.0;
    for (int i : {GasFlow, InletPressure, InletTemperature, GasViscosity, GasDiameter, GasRoughness, GasLength,
                  GasConduitHeight, GasConduitWidth})
        txtData[static_cast<size_t>(i)].text = "0";
    // The liquid tab's K fields take these texts; the gas tab's keep theirs.
    txtDisplay[LiquidK1].text = "7";
    txtDisplay[LiquidK2].text = "19";
    txtDisplay[LiquidK3].text = "20";
    for (int i : {MolecularWeight, Compressibility, HeatCapacityRatio, GasReynolds, GasFriction, InletMach, OutletMach})
        txtDisplay[static_cast<size_t>(i)].text.clear();
    for (int i = GasFlow; i <= ExitPressure; ++i)
        showField(i);
    Frame1[GasFluidFrame].caption = "Fluid Data";
    txtGas.text.clear();
    gasName.clear();
    txtProject[GasTab].text.clear();
    txtTag[GasTab].text.clear();
    showFluidNames();
    requestFocus(pressure_drop::txtProject(GasTab));
}

void PressureDropModel::resetTwoPhaseCase()
{
    PressureDropData& r = record;
    showField(TwoPhaseLength);
    r.GasFlow = r.LiquidFlow = r.Roughness = r.Diameter = r.VaporDensity = r.LiquidDensity = r.Velocity =
        r.ExitVelocity = r.PressureDrop = 0.0;
    r.InletTemperature = 77.0;
    for (int i = TwoPhaseLiquidViscosity; i <= TwoPhasePressureDrop; ++i)
        txtData[static_cast<size_t>(i)].text = "0";
    for (int i = TwoPhaseVaporReynolds; i <= TwoPhaseRegime; ++i)
        txtDisplay[static_cast<size_t>(i)].text.clear();
    for (int i = TwoPhaseLiquidViscosity; i <= TwoPhasePressureDrop; ++i)
        showField(i);
    txtLiquid.text.clear();
    txtGas.text.clear();
    txtProject[TwoPhaseTab].text.clear();
    txtTag[TwoPhaseTab].text.clear();
    Frame1[LiquidFluidFrame].caption = "Fluid Data";
    Frame1[GasFluidFrame].caption = "Fluid Data";
    showFluidNames();
}

bool PressureDropModel::Form_QueryUnload()
{
    ChangeNotice notice(*this);
    if (DirtyFlag) {
        const MessageAnswer answer = ui_.ask(kTitle, "Save data before closing?", MessageIcon::Question,
                                             MessageButtons::YesNoCancel, MessageAnswer::Yes);
        if (answer == MessageAnswer::Cancel)
            return false;
        if (answer == MessageAnswer::Yes) {
            const bool saved = fileName_.empty() ? ui_.runSaveAs() : OpenSaveData("Save");
            if (!saved)
                return false; // nothing is lost: the form stays open
        }
    }
    closeDocument();
    return true;
}

void PressureDropModel::closeDocument()
{
    resetLiquidCase();
    resetGasCase();
    resetTwoPhaseCase();
    ui_.setToolbarButtonEnabled("Save", false);
    ui_.setToolbarButtonEnabled("Print", false);
}


} // namespace kestrova
