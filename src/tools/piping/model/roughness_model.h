#pragma once
// The pipe roughness picker (frmRoughness) without its window: a fixed table
// of materials, new or used, or a typed value.

#include "forms/model/help_contexts.h"
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

namespace roughness {
inline Control optPipeRoughness(int i) { return {"optPipeRoughness", i}; }
inline Control optPipeCondition(int i) { return {"optPipeCondition", i}; }
inline const Control txtData{"txtData"};
inline const Control cboUnits{"cboUnits"};
inline const Control cmdSelect{"cmdSelect"};
inline const Control cmdReset{"cmdReset"};
inline const Control cmdExit{"cmdExit"};
} // namespace roughness

// Everything the roughness window shows, as the tool holds it.
struct RoughnessState {
    int material = 0;
    int condition = 0; // new, used
    Single roughness;  // feet
    std::array<ButtonControl, 9> optPipeRoughness;
    std::array<ButtonControl, 2> optPipeCondition;
    TextControl txtData;
    ListControl cboUnits;
    ButtonControl cmdSelect;
    bool cancelled = false;
};

class RoughnessModel : public FormModel, private RoughnessState {
    Q_OBJECT

public:
    int helpTopic() const override { return help::Roughness; }
    static constexpr const char* kTitle = "Absolute Roughness";

    RoughnessModel(UserInterface& ui, SettingsStore* store, QObject* parent = nullptr);

    const RoughnessState& view() const { return *this; }

    void Form_Load();
    void Form_Activate();
    void optPipeRoughness_Click(int index);
    void optPipeRoughness_DblClick(int index); // selects, when a tool asks for a roughness
    void optPipeCondition_Click(int index);
    void setUnit(UnitIndex unit);
    void txtData_LostFocus();
    void cmdSelect_Click();
    void cmdReset_Click();
    void cmdExit_Click();

    Single SelectRoughness(const std::function<void()>& showModal);

    void commit(const Control& field, const std::string& text) override;
    void click(const Control& control) override;
    void choose(const Control& list, int entry) override;
    void doubleClick(const Control& control) override;

private:
    void compute();
    void showRoughness();
    void showChoices();
    UserInterface& ui_;
    SettingsStore* store_;
    bool loaded_ = false;
};

// The roughness text of a unit index, with the masks of the piping tools.
std::string roughnessText(Single feet, UnitIndex unit);

} // namespace kestrova
