#pragma once
// The heat capacity ratio tool (frmHeatCapRatio) without its window: k from a
// real gas calculation on reduced conditions, or one of seventeen typical values.

#include "forms/model/form_model.h"
#include "units/unit_field.h"

#include <array>
#include <functional>
#include <string>

namespace kestrova {

class UserInterface;

struct TypicalRatio {
    const char* caption;
    const char* value; // the option's tag
    const char* formula;
};
// Option1(0) to Option1(17); the last one is the real gas calculation.
const std::array<TypicalRatio, 18>& typicalRatios();

class HeatCapRatioModel : public FormModel {
    Q_OBJECT

public:
    static constexpr const char* kTitle = "Heat Capacity Ratio";

    explicit HeatCapRatioModel(UserInterface& ui, QObject* parent = nullptr);

    void Form_Activate();
    void txtData_LostFocus(int index);
    void commitText(int index);
    void setUnit(int index, UnitIndex unit);
    void Option1_Click(int index);
    void cmdApply_Click();
    void cmdClose_Click();
    void cmdPhysProps_Click(bool dataBaseValid);
    void cmdReset_Click();
    void ComputeRatio();

    Single GetHeatCapRatioValue(Single temperature, Single pressure, const std::function<void()>& showModal);

    // txtData(0) T, (1) P, (2) Tc, (3) Pc, (4) Cp, (5) k.
    std::array<std::string, 6> txtData;
    std::array<UnitIndex, 5> cboUnits{};
    bool errorShown = false; // lblError "(Check Input)", and the ratio in red
    int option = -1;
    std::string frameCaption = "Real Gas Calculation";
    Single temperature, pressure, criticalTemperature, criticalPressure, heatCapacity, ratio;
    bool cancelled = false;

    static const FieldKind& kindOf(int index);

private:
    void showField(int index);
    UserInterface& ui_;
};

} // namespace kestrova
