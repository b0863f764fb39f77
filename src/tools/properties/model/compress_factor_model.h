#pragma once
// The compressibility factor tool (frmCompressFactor) without its window: Z
// from reduced conditions by Redlich-Kwong, Soave-Redlich-Kwong (with its
// hydrogen form) or Peng-Robinson, and GetZValue for the tools that need a Z.

#include "forms/model/form_model.h"
#include "units/unit_field.h"

#include <array>
#include <functional>
#include <string>

namespace kestrova {

class SettingsStore;
class UserInterface;

class CompressFactorModel : public FormModel {
    Q_OBJECT

public:
    static constexpr const char* kTitle = "Compressibility Factor";

    CompressFactorModel(UserInterface& ui, SettingsStore* store, QObject* parent = nullptr);

    void Form_Load();
    void Form_Activate();
    void txtData_LostFocus(int index);
    void commitText(int index);
    void setUnit(int index, UnitIndex unit);
    void optEOS_Click(int index);
    void chkHydrogen_Click(bool checked);
    void cmdApply_Click();
    void cmdClose_Click();
    void cmdPhysProps_Click(bool dataBaseValid);
    void cmdReset_Click();
    void ComputeZ();

    Single GetZValue(Single temperature, Single pressure, const std::function<void()>& showModal);

    // txtData(0) T, (1) P, (2) Tc, (3) Pc, (4) acentric factor, (5) Z.
    std::array<std::string, 6> txtData;
    std::array<UnitIndex, 4> cboUnits{};
    bool acentricEnabled = false;
    int eos = 0;
    bool hydrogen = false;
    std::string inputsCaption = "Inputs";
    Single temperature, pressure, criticalTemperature, criticalPressure;
    bool cancelled = false;

    static const FieldKind& kindOf(int index);

private:
    void showField(int index);
    UserInterface& ui_;
    SettingsStore* store_;
};

} // namespace kestrova
