#pragma once
// The heat capacity ratio tool (frmHeatCapRatio) without its window: k from a
// real gas calculation on reduced conditions, or one of seventeen typical values.

#include "forms/model/help_contexts.h"
#include "forms/model/unit_field_dialog_model.h"

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

// The tool's values in internal units: °F, psia, kJ/(kmol K); the ratio it computes.
struct HeatCapRatioData {
    Single temperature, pressure, criticalTemperature, criticalPressure, heatCapacity, ratio;
};

namespace heat_cap_ratio {
enum Field : int {
    Temperature = 0, Pressure = 1, CriticalTemperature = 2, CriticalPressure = 3, HeatCapacity = 4, Ratio = 5,
};
inline constexpr int kFields = 6;
inline constexpr int kOptions = 18;
inline Control Option1(int i) { return {"Option1", i}; }
inline const Control lblError{"lblError"};
inline const Control cmdPhysProps{"cmdPhysProps"};
inline const Control realGasFrame{"Frame1", 0};
} // namespace heat_cap_ratio

class HeatCapRatioModel : public UnitFieldDialogModel<HeatCapRatioData, heat_cap_ratio::kFields> {
public:
    int helpTopic() const override { return help::HeatCapacityRatio; }
    static constexpr const char* kTitle = "Heat Capacity Ratio";

    explicit HeatCapRatioModel(UserInterface& ui, bool dataBaseValid = true, QObject* parent = nullptr);

    void Form_Activate();
    void Option1_Click(int index);
    void Option1_DblClick(int index); // Apply, while Apply is enabled
    void cmdPhysProps_Click();
    void cmdReset_Click() override;
    void ComputeRatio();

    Single GetHeatCapRatioValue(Single temperature, Single pressure, const std::function<void()>& showModal);

    void doubleClick(const Control& control) override;

protected:
    void compute() override { ComputeRatio(); }
    void clickOther(const Control& control) override;

private:
    void takeGasProperties();

    bool dataBaseValid_;
    std::array<ButtonControl, heat_cap_ratio::kOptions> options_;
    ButtonControl cmdApply_, cmdPhysProps_;
    LabelControl lblError_{"(Check Input)", false, false};
    FrameControl realGas_{"Real Gas Calculation"};
};

} // namespace kestrova
