#pragma once
// The compressibility factor tool (frmCompressFactor) without its window: Z
// from reduced conditions by Redlich-Kwong, Soave-Redlich-Kwong (with its
// hydrogen form) or Peng-Robinson, and GetZValue for the tools that need a Z.

#include "forms/model/help_contexts.h"
#include "forms/model/unit_field_dialog_model.h"

#include <array>
#include <functional>
#include <string>

namespace kestrova {

class SettingsStore;
class UserInterface;

// The tool's values in internal units: °F and psia; the acentric factor as typed.
struct CompressFactorData {
    Single temperature, pressure, criticalTemperature, criticalPressure, acentricFactor;
};

namespace compress_factor {
enum Field : int {
    Temperature = 0, Pressure = 1, CriticalTemperature = 2, CriticalPressure = 3, AcentricFactor = 4, Z = 5,
};
inline constexpr int kFields = 6;
inline Control optEOS(int i) { return {"optEOS", i}; }
inline const Control chkHydrogen{"chkHydrogen"};
inline const Control cmdPhysProps{"cmdPhysProps"};
inline const Control inputsFrame{"Frame1", 1};
} // namespace compress_factor

class CompressFactorModel : public UnitFieldDialogModel<CompressFactorData, compress_factor::kFields> {
public:
    int helpTopic() const override { return help::Compressibility; }
    static constexpr const char* kTitle = "Compressibility Factor";

    // `dataBaseValid` says whether the physical properties tool can be asked.
    CompressFactorModel(UserInterface& ui, SettingsStore* store, bool dataBaseValid = true, QObject* parent = nullptr);

    void Form_Load();
    void Form_Activate();
    void optEOS_Click(int index);
    void chkHydrogen_Click(bool checked);
    void cmdPhysProps_Click();
    void cmdReset_Click() override;
    void ComputeZ();

    Single GetZValue(Single temperature, Single pressure, const std::function<void()>& showModal);

    int eos() const { return eos_; }

    void choose(const Control& list, int entry) override;

protected:
    void compute() override { ComputeZ(); }
    void clickOther(const Control& control) override;

private:
    void takeGasProperties();
    void showChoices();

    SettingsStore* store_;
    bool dataBaseValid_;
    int eos_ = 0;
    bool hydrogen_ = false;
    std::array<ButtonControl, 3> optEOS_;
    ButtonControl chkHydrogen_, cmdApply_, cmdPhysProps_;
    FrameControl inputs_{"Inputs"};
};

} // namespace kestrova
