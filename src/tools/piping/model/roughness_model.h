#pragma once
// The pipe roughness picker (frmRoughness) without its window: a fixed table
// of materials, new or used, or a typed value.

#include "forms/model/form_model.h"
#include "units/basConversions.h"
#include "numeric/single.h"

#include <array>
#include <functional>
#include <string>

namespace kestrova {

class SettingsStore;
class UserInterface;

struct RoughnessMaterial {
    const char* caption;
    const char* value; // feet, the option's tag
    const char* label;
};
const std::array<RoughnessMaterial, 9>& roughnessMaterials();

class RoughnessModel : public FormModel {
    Q_OBJECT

public:
    static constexpr const char* kTitle = "Absolute Roughness";

    RoughnessModel(UserInterface& ui, SettingsStore* store, QObject* parent = nullptr);

    void Form_Load();
    void Form_Activate();
    void optPipeRoughness_Click(int index);
    void optPipeCondition_Click(int index);
    void setUnit(UnitIndex unit);
    void txtData_LostFocus();
    void cmdSelect_Click();
    void cmdReset_Click();
    void cmdExit_Click();

    Single SelectRoughness(const std::function<void()>& showModal);

    int material = 0;
    int condition = 0;
    UnitIndex unit = 0;
    std::string txtData;
    Single roughness; // feet
    bool selectEnabled = false;
    bool cancelled = false;

private:
    void compute();
    void showRoughness();
    UserInterface& ui_;
    SettingsStore* store_;
    bool loaded_ = false;
};

// The roughness text of a unit index, with the masks of the piping tools.
std::string roughnessText(Single feet, UnitIndex unit);

} // namespace kestrova
