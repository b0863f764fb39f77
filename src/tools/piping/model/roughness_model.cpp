#include "tools/piping/model/roughness_model.h"

#include "units/field_kinds.h"
#include "forms/store/global_units.h"
#include "forms/store/settings_store.h"
#include "forms/model/user_interface.h"
#include "numeric/display_mask.h"
#include "numeric/field_text.h"
#include "numeric/numeric_fault.h"

namespace kestrova {

const std::array<RoughnessMaterial, 9>& roughnessMaterials()
{
    static const std::array<RoughnessMaterial, 9> table{{
        {"&Steel / Wrought Iron / Stainless Steel", "0.00015", "0.00015  (0.0457)"},
        {"Ri&veted Steel", "0.0165", "0.003 - 0.03  (0.9144 - 9.1440))"},
        {"&Cast Iron", "0.00085", "0.00085  (0.2591)"},
        {"&Galvanized Iron", "0.0005", "0.0005  (0.1524)"},
        {"Co&ncrete", "0.0055", "0.001 - 0.01  (0.3048 - 3.0480)"},
        {"&Drawn Tubing (brass, copper)", "0.000005", "0.000005  (0.0015)"},
        {"&PVC", "0.000005", "0.000005  (0.0015)"},
        {"&HDPE", "0.000023", "0.000023  (0.0070)"},
        {"&Glass (smooth)", "0.000001", "0.000001  (0.0003)"},
    }};
    return table;
}

std::string roughnessText(Single feet, UnitIndex unit)
{
    static const char* masks[] = {"0.00000", "0.000000", "0.0000", "0.00000"};
    if (unit < 0 || unit > 3)
        return {};
    return formatMask(RoughnessToUnit(feet, unit), masks[unit]);
}

RoughnessModel::RoughnessModel(UserInterface& ui, SettingsStore* store, QObject* parent)
    : FormModel(parent), ui_(ui), store_(store)
{
    txtData.keys = KeyRule::Number;
    cmdSelect.enabled = false; // until a tool asks for a roughness
    optPipeCondition[0].toolTip = "New Pipe";
    optPipeCondition[1].toolTip = "Used Pipe (new roughness x 3)";
    ControlRegistry& all = controls();
    all.family("optPipeRoughness", optPipeRoughness);
    all.family("optPipeCondition", optPipeCondition);
    all.add(roughness::txtData, txtData);
    all.add(roughness::cboUnits, cboUnits);
    all.add(roughness::cmdSelect, cmdSelect);
    showChoices();
}

void RoughnessModel::showChoices()
{
    for (int i = 0; i < 9; ++i)
        optPipeRoughness[static_cast<size_t>(i)].checked = i == material;
    for (int i = 0; i < 2; ++i)
        optPipeCondition[static_cast<size_t>(i)].checked = i == condition;
}

void RoughnessModel::Form_Load()
{
    ChangeNotice notice(*this);
    compute();
    material = store_ ? store_->getIndex("Settings", "PipeRoughness", 0, 9) : 0;
    condition = store_ ? store_->getIndex("Settings", "PipeCondition", 0, 2) : 0;
    showChoices();
    compute();
    loaded_ = true;
}

void RoughnessModel::Form_Activate()
{
    ChangeNotice notice(*this);
    cboUnits.listIndex = globalUnits()[Quantity::Roughness];
    showRoughness();
}

void RoughnessModel::compute()
{
    const double value = parseFieldNumber(roughnessMaterials()[static_cast<size_t>(material)].value);
    roughness = condition == 1 ? value * 3 : value;
    showRoughness();
}

void RoughnessModel::showRoughness()
{
    txtData.text = roughnessText(roughness, cboUnits.listIndex);
}

void RoughnessModel::optPipeRoughness_Click(int index)
{
    if (index < 0 || index > 8)
        return;
    ChangeNotice notice(*this);
    material = index;
    showChoices();
    compute();
    if (loaded_ && store_)
        store_->save("Settings", "PipeRoughness", std::to_string(index));
}

void RoughnessModel::optPipeCondition_Click(int index)
{
    if (index < 0 || index > 1)
        return;
    ChangeNotice notice(*this);
    condition = index;
    showChoices();
    compute();
    if (loaded_ && store_)
        store_->save("Settings", "PipeCondition", std::to_string(index));
}

void RoughnessModel::setUnit(UnitIndex newUnit)
{
    ChangeNotice notice(*this);
    cboUnits.listIndex = newUnit;
    showRoughness();
}

void RoughnessModel::txtData_LostFocus()
{
    ChangeNotice notice(*this);
    roughness = unitFieldValue(field_kinds::roughness, txtData.text, cboUnits.listIndex);
    showRoughness();
}

void RoughnessModel::cmdSelect_Click()
{
    ChangeNotice notice(*this);
    if (roughness == 0) {
        ui_.ask(kTitle, "Enter an absolute roughness to use.", MessageIcon::Warning, MessageButtons::Ok,
                MessageAnswer::Ok);
        return;
    }
    closeRequested = true;
}

void RoughnessModel::cmdReset_Click()
{
    ChangeNotice notice(*this);
    if (ui_.ask("Pipe Roughness", "Reset all input fields?", MessageIcon::Warning, MessageButtons::OkCancel,
                MessageAnswer::Ok) == MessageAnswer::Cancel)
        return;
    optPipeCondition_Click(0);
    optPipeRoughness_Click(0);
    cboUnits.listIndex = globalUnits()[Quantity::Roughness];
    showRoughness();
}

void RoughnessModel::cmdExit_Click()
{
    ChangeNotice notice(*this);
    cancelled = true;
    closeRequested = true;
}

Single RoughnessModel::SelectRoughness(const std::function<void()>& showModal)
{
    {
        ChangeNotice notice(*this);
        cmdSelect.enabled = true;
        cancelled = false;
    }
    showModal();
    return cancelled ? Single(0.0) : roughness;
}

void RoughnessModel::optPipeRoughness_DblClick(int index)
{
    if (index < 0 || index > 8 || !cmdSelect.enabled)
        return;
    cmdSelect_Click();
}

void RoughnessModel::commit(const Control& field, const std::string& text)
{
    if (field != roughness::txtData)
        return;
    txtData.text = text;
    txtData_LostFocus();
}

void RoughnessModel::click(const Control& control)
{
    if (control.family == "optPipeRoughness")
        optPipeRoughness_Click(control.index);
    else if (control.family == "optPipeCondition")
        optPipeCondition_Click(control.index);
    else if (control == roughness::cmdSelect)
        cmdSelect_Click();
    else if (control == roughness::cmdReset)
        cmdReset_Click();
    else if (control == roughness::cmdExit)
        cmdExit_Click();
}

void RoughnessModel::choose(const Control& list, int entry)
{
    if (list == roughness::cboUnits)
        setUnit(static_cast<UnitIndex>(entry));
}

void RoughnessModel::doubleClick(const Control& control)
{
    if (control.family == "optPipeRoughness")
        optPipeRoughness_DblClick(control.index);
}

} // namespace kestrova
