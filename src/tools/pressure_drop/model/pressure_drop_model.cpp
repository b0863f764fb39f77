// The pressure drop tool's events: load and activation, field commits, unit
// lists, cross sections, the data buttons, reset and closing.

#include "tools/pressure_drop/model/pressure_drop_model.h"

#include "forms/store/global_units.h"
#include "forms/model/user_interface.h"
#include "numeric/display_mask.h"
#include "numeric/field_text.h"
#include "numeric/numeric_fault.h"
#include "tools/piping/model/minor_loss_store.h"
#include "tools/piping/model/pipe_selection.h"
#include "tools/properties/model/phys_props.h"
#include "units/basLoadUnits.h"

namespace kestrova {

namespace {

constexpr std::array<int, 3> kLiquidKFields{0, 12, 18};
constexpr std::array<int, 3> kGasKFields{7, 19, 20};
constexpr int kLiquidTab = 0, kGasTab = 1, kTwoPhaseTab = 2;
constexpr const char* kArrowCaption = "\u279C"; // the regime map can be opened
constexpr const char* kCrossCaption = "\u2716"; // no map for downflow

// The controls of one tab's cross section options.
struct SectionControls {
    int diameter, width, height;
    int diameterLabel, widthLabel, heightLabel, kLabel;
    const char* widthCaption;
    const char* heightCaption;
    std::array<int, 3> kFields;
    int pipeTable, roughnessTable, minorLossTable, odTable, idTable;
};

const SectionControls kLiquidSection{5,  3,  4, 3, 4, 7, 9, "Width of Conduit:", "Height of Conduit:", kLiquidKFields,
                                     0,  1,  2, 3, 4};
const SectionControls kGasSection{15, 43, 42, 19, 43, 52, 28, "Width:", "Height:", kGasKFields, 6, 7, 8, 14, 10};

std::vector<int> inputFieldsOfTab(int tab)
{
    switch (tab) {
    case kLiquidTab: return {0, 1, 2, 3, 4, 5, 6, 7, 8, 44};
    case kGasTab: return {11, 12, 13, 14, 15, 16, 17, 42, 43};
    default: return {26, 27, 28, 29, 30, 31, 32, 33, 34, 35, 45};
    }
}

} // namespace

PressureDropModel::PressureDropModel(UserInterface& ui, QObject* parent) : FormModel(parent), ui_(ui)
{
    Label1 = {{3, {"Pipe/Tube Diameter:"}}, {4, {"Width of Conduit:"}}, {7, {"Height of Conduit:"}},
              {9, {"K1, K2, K3:"}},         {19, {"Pipe/Tube Diameter:"}}, {28, {"K1, K2, K3:"}},
              {43, {"Width:"}},             {52, {"Height:"}}};
    Frame1 = {{{"Fluid Data"}, {"Pipe/Tube Data"}, {"Calculated Results"}, {"Fluid Data"}, {"Pipe/Tube Data"},
               {"Calculated Results"}, {"Fluid Data"}, {"Pipe/Tube Data"}, {"Calculated Results"}}};
    const std::map<int, const char*> tips{
        {0, "Pipe/Tube Diameter Table"}, {6, "Pipe/Tube Diameter Table"}, {12, "Pipe/Tube Diameter Table"},
        {1, "Roughness Table"},          {7, "Roughness Table"},          {11, "Roughness Table"},
        {2, "Minor Fitting Loss Table"}, {8, "Minor Fitting Loss Table"}, {3, "Show Table"},
        {4, "Show Table"},               {14, "Show Table"},              {10, "Show Table"},
        {5, "Compute Z"},                {9, "Compute the Specific Heat Ratio, k"},
        {13, "Open Flow Regime Map"},    {15, "Flow Rate Conversions"},   {16, "Flow Rate Conversions"},
        {17, "Flow Rate Conversions"},   {18, "Flow Rate Conversions"},   {19, "Compute Gas Density"}};
    for (const auto& [index, tip] : tips)
        cmdTable[static_cast<size_t>(index)].caption = tip;
    cmdTable[13].caption = kArrowCaption;
}

void PressureDropModel::Form_Load()
{
    ChangeNotice notice(*this);
    for (auto& list : cboUnits)
        list.listIndex = 0;
    record.InletTemperature = 77.0;
    record.PipeLength = startPipeLength();
    for (int k : {0, 12, 18, 7, 19, 20})
        txtDisplay[static_cast<size_t>(k)].text = "0";
    crossSectionLiquid = 0;
    crossSectionGas = 3;
    calcType = 0;
    orientation = 0;
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
        cboUnits[static_cast<size_t>(i)].listIndex = globalUnits()[pressureDropUnitSetup(i)];
        showField(i);
    }
}

void PressureDropModel::SSTab1_Click(int newTab)
{
    ChangeNotice notice(*this);
    tab = std::clamp(newTab, 0, 2);
    tabChange();
}

void PressureDropModel::tabChange()
{
    crossSectionTabStop.fill(false);
    calcTypeTabStop.fill(false);
    orientationTabStop.fill(false);
    for (auto& field : txtData)
        field.tabStop = false;
    for (int i : {4, 5, 6})
        txtDisplay[static_cast<size_t>(i)].tabStop = false;
    for (int t = 0; t < 3; ++t)
        txtProject[static_cast<size_t>(t)].tabStop = txtTag[static_cast<size_t>(t)].tabStop = (t == tab);
    for (int i : inputFieldsOfTab(tab))
        txtData[static_cast<size_t>(i)].tabStop = true;
    if (tab == kGasTab)
        for (int i : {4, 5, 6})
            txtDisplay[static_cast<size_t>(i)].tabStop = true;
    helpContext = 1190 + 10 * tab;
    if (active_)
        focusRequest = "txtProject(" + std::to_string(tab) + ")";
    for (int i = 0; i <= 41; ++i)
        showField(i);
    CalculateResults();
}

void PressureDropModel::cboUnits_Click(int index)
{
    ChangeNotice notice(*this);
    showField(index);
}

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
    const FieldBinding& field = pressureDropField(index);
    const std::string text = unitFieldText(*field.kind, record.*field.member, cboUnits[static_cast<size_t>(index)].listIndex);
    if (!text.empty()) // a value too large for its unit cannot be shown: the text stays
        txtData[static_cast<size_t>(index)].text = text;
}

void PressureDropModel::txtData_LostFocus(int index)
{
    if (index < 0 || index >= kPressureDropFields)
        return;
    ChangeNotice notice(*this);
    commitFieldText(index);
    CalculateResults();
}

void PressureDropModel::commitFieldText(int index)
{
    if (index < 0 || index >= kPressureDropFields)
        return;
    const FieldBinding& field = pressureDropField(index);
    record.*field.member =
        unitFieldValue(*field.kind, txtData[static_cast<size_t>(index)].text, cboUnits[static_cast<size_t>(index)].listIndex);
    showField(index);
}

void PressureDropModel::txtDisplay_LostFocus(int index)
{
    if (index < 0 || index >= kDisplays)
        return;
    ChangeNotice notice(*this);
    commitDisplayText(index);
    CalculateResults();
}

void PressureDropModel::commitDisplayText(int index)
{
    if (index < 0 || index >= kDisplays)
        return;
    TextControl& display = txtDisplay[static_cast<size_t>(index)];
    switch (index) {
    case 0: case 7: case 12: case 18: case 19: case 20:
        if (display.text.empty())
            display.text = "0";
        break;
    case 4: case 5: case 6: {
        Single PressureDropData::*member = index == 4   ? &PressureDropData::MolecularWeight
                                           : index == 5 ? &PressureDropData::Compressibility
                                                        : &PressureDropData::HeatCapacityRatio;
        record.*member = fieldSingleOr0(display.text);
        break;
    }
    default:
        break;
    }
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

void PressureDropModel::optCrossSection_Click(int index)
{
    if (index < 0 || index > 5)
        return;
    ChangeNotice notice(*this);
    for (int field : {5, 15, 35})
        txtData_LostFocus(field);
    selectCrossSection(index);
    setDirty();
    CalculateResults();
    // The diameter fields show the diameter the results now use: after a
    // rectangle or an annulus, the hydraulic diameter it left.
    for (int field : {5, 15, 35})
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
    cmdTable[static_cast<size_t>(c.odTable)].enabled = annular;
    cmdTable[static_cast<size_t>(c.idTable)].enabled = annular;
    for (int index : {c.width, c.height}) {
        cboUnits[static_cast<size_t>(index)].listIndex = globalUnits()[pressureDropUnitSetup(index)];
        showField(index);
    }
}

void PressureDropModel::optCalcType_Click(int index)
{
    if (index < 0 || index > 1)
        return;
    ChangeNotice notice(*this);
    calcType = index;
    CalculateResults();
    setDirty();
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
    cmdTable[13].enabled = index != 2;
    cmdTable[13].caption = index == 2 ? kCrossCaption : kArrowCaption;
}

void PressureDropModel::showKSums()
{
    const MinorLossStore& store = minorLossStore();
    for (const auto& fields : {kLiquidKFields, kGasKFields}) {
        txtDisplay[static_cast<size_t>(fields[0])].text = formatMask(store.SegK1[0], "#,###,##0");
        txtDisplay[static_cast<size_t>(fields[1])].text = formatMask(store.SegK2[0], "##0.00");
        txtDisplay[static_cast<size_t>(fields[2])].text = formatMask(store.SegK3[0], "##0.00");
    }
}

void PressureDropModel::cmdTable_Click(int index)
{
    if (index < 0 || index >= kButtons || !cmdTable[static_cast<size_t>(index)].enabled)
        return;
    ChangeNotice notice(*this);
    PressureDropData& r = record;
    const auto show = [this](std::initializer_list<int> fields) {
        for (int field : fields)
            showField(field);
    };
    switch (index) {
    case 0: case 6: case 12: {
        const Single diameter = ui_.SelectPipeID("ID");
        if (diameter != 0)
            r.Diameter = diameter;
        r.Roughness = pipeToolRoughness();
        show({5, 6, 15, 16, 35, 34});
        break;
    }
    case 1: case 7: case 11: {
        const Single roughness = ui_.SelectRoughness();
        if (roughness != 0)
            r.Roughness = roughness;
        show({6, 16, 34});
        break;
    }
    case 2: case 8:
        CurrentLine() = 0;
        ui_.GetKValue();
        if (minorLossStore().hasData[0])
            showKSums();
        break;
    case 3: case 14: case 4: case 10: {
        const bool outer = index == 3 || index == 14;
        const Single diameter = ui_.SelectPipeID(outer ? "OD" : "ID");
        if (diameter != 0)
            (outer ? r.ConduitWidth : r.ConduitHeight) = diameter;
        show(outer ? std::initializer_list<int>{3, 43} : std::initializer_list<int>{4, 42});
        r.Roughness = pipeToolRoughness();
        show({6});
        break;
    }
    case 5: case 9: {
        const Single value = index == 5 ? ui_.GetZValue(r.InletTemperature, r.InletPressure)
                                        : ui_.GetHeatCapRatioValue(r.InletTemperature, r.InletPressure);
        if (value != 0) {
            const int display = index == 5 ? 5 : 6;
            txtDisplay[static_cast<size_t>(display)].text = plainNumberText(value);
            txtDisplay_LostFocus(display);
        }
        break;
    }
    case 13:
        ui_.showRegimeMap(orientation == 0 ? "Horizontal" : "Vertical Up");
        break;
    case 15: case 17: case 16: case 18: {
        const bool liquid = index == 15 || index == 17;
        const Single flow = ui_.GetFlowrateConversion(liquid ? 1 : 2);
        if (flow != 0)
            (liquid ? r.LiquidFlow : r.GasFlow) = flow;
        show(liquid ? std::initializer_list<int>{0, 28} : std::initializer_list<int>{11, 30});
        break;
    }
    case 19: {
        const Single density = ui_.GetGasDensity(r.InletTemperature, r.InletPressure);
        if (density != 0)
            r.VaporDensity = density;
        show({31});
        break;
    }
    default:
        return;
    }
    setDirty();
    CalculateResults();
}

void PressureDropModel::cmdProperties_Click(int index)
{
    if (index < 0 || index > 3)
        return;
    ChangeNotice notice(*this);
    setDirty();
    const bool liquid = index == 0 || index == 2;
    propertiesCancelled() = false;
    propertiesCancelled() = !ui_.GetPhysicalProperties(liquid ? FluidKind::Liquid : FluidKind::Gas, record.InletTemperature);
    if (propertiesCancelled())
        return;
    const PhysProps& props = physProps();
    if (liquid) {
        if (!props.liquidName.empty()) {
            Frame1[0].caption = "Fluid Data:  " + props.liquidName;
            txtLiquid.text = liquidName = props.liquidName;
        }
        record.LiquidDensity = props.liquidDensity;
        record.LiquidViscosity = props.liquidViscosity;
        // The properties tool hands the surface tension over in the first unit
        // of its list, dyn/cm; the record holds N/m.
        record.SurfaceTension = SurfaceTensionFromUnit(props.surfaceTension, 0);
        for (int field : {1, 2, 27, 26, 29})
            showField(field);
    } else {
        if (!props.gasName.empty()) {
            Frame1[3].caption = "Fluid Data:  " + props.gasName;
            txtGas.text = gasName = props.gasName;
        }
        record.VaporViscosity = props.vaporViscosity;
        record.MolecularWeight = props.molecularWeight;
        txtDisplay[4].text = plainNumberText(record.MolecularWeight);
        for (int field : {14, 32})
            showField(field);
    }
}

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
    if (index == 0)
        resetLiquidCase();
    else if (index == 1)
        resetGasCase();
    else
        resetTwoPhaseCase();
    fileName_.clear();
    setDirty();
}

void PressureDropModel::resetLiquidCase()
{
    PressureDropData& r = record;
    showField(8);
    r.LiquidFlow = r.LiquidDensity = r.LiquidViscosity = r.Roughness = r.Diameter = r.ConduitWidth =
        r.SurfaceTension = 0.0;
    r.InletTemperature = 77.0;
    for (int i = 0; i <= 10; ++i)
        txtData[static_cast<size_t>(i)].text = "0";
    for (int k : kLiquidKFields)
        txtDisplay[static_cast<size_t>(k)].text = "0";
    minorLossStore().clearSlot(0);
    for (int i = 1; i <= 3; ++i)
        txtDisplay[static_cast<size_t>(i)].text.clear();
    for (int i = 0; i <= 10; ++i)
        showField(i);
    showField(44);
    Frame1[0].caption = "Fluid Data";
    txtLiquid.text.clear();
    liquidName.clear();
    txtProject[0].text.clear();
    txtTag[0].text.clear();
}

void PressureDropModel::resetGasCase()
{
    PressureDropData& r = record;
    showField(17);
    r.GasFlow = r.InletPressure = r.ExitPressure = r.SonicVelocity = r.VaporViscosity = r.Roughness =
        r.Diameter = r.GasDensity = r.ExitDensity = r.ExitTemperature = r.Velocity = r.ExitVelocity = 0.0;
    r.InletTemperature = 77.0;
    for (int i : {11, 12, 13, 14, 15, 16, 17, 42, 43})
        txtData[static_cast<size_t>(i)].text = "0";
    // The liquid tab's K fields take these texts; the gas tab's keep theirs.
    txtDisplay[0].text = "7";
    txtDisplay[12].text = "19";
    txtDisplay[18].text = "20";
    for (int i : {4, 5, 6, 8, 9, 10, 11})
        txtDisplay[static_cast<size_t>(i)].text.clear();
    for (int i = 11; i <= 25; ++i)
        showField(i);
    Frame1[3].caption = "Fluid Data";
    txtGas.text.clear();
    gasName.clear();
    txtProject[1].text.clear();
    txtTag[1].text.clear();
    focusRequest = "txtProject(1)";
}

void PressureDropModel::resetTwoPhaseCase()
{
    PressureDropData& r = record;
    showField(33);
    r.GasFlow = r.LiquidFlow = r.Roughness = r.Diameter = r.VaporDensity = r.LiquidDensity = r.Velocity =
        r.ExitVelocity = r.PressureDrop = 0.0;
    r.InletTemperature = 77.0;
    for (int i = 26; i <= 41; ++i)
        txtData[static_cast<size_t>(i)].text = "0";
    for (int i = 13; i <= 17; ++i)
        txtDisplay[static_cast<size_t>(i)].text.clear();
    for (int i = 26; i <= 41; ++i)
        showField(i);
    txtLiquid.text.clear();
    txtGas.text.clear();
    txtProject[2].text.clear();
    txtTag[2].text.clear();
    Frame1[0].caption = "Fluid Data";
    Frame1[3].caption = "Fluid Data";
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
