#pragma once
// The flow conversions tool (frmFlowConversions) without its window: standard
// and actual gas volumes, liquid gallons and mass, in American or metric
// units, and the mass flow it hands back through GetFlowrateConversion.

#include "forms/model/form_model.h"
#include "numeric/single.h"

#include <array>
#include <functional>
#include <string>

namespace kestrova {

class SettingsStore;

enum class ConversionRole { Input, Output, NotUsed };

class FlowConversionsModel : public FormModel {
    Q_OBJECT

public:
    struct Field {
        std::string text;
        ConversionRole role = ConversionRole::NotUsed;
    };

    // The settings store may be absent: then nothing is read or written.
    explicit FlowConversionsModel(SettingsStore* store, QObject* parent = nullptr);

    void Form_Load();
    void Form_Unload();
    void optConversion_Click(int index);
    void optSTP_Click(int index);
    void optUnits_Click(int index);
    void txtData_LostFocus(int index);
    void commitText(int index); // the reading part of leaving a field
    void cmdApply_Click();
    void cmdCancel_Click();

    // kind 1 liquid, 2 gas; `showModal` runs the dialog. 0 when not applied.
    Single GetFlowrateConversion(int kind, const std::function<void()>& showModal);

    std::array<Field, 8> txtData;
    int conversion = 0;
    std::array<bool, 6> conversionEnabled{true, true, true, true, true, true};
    int stp = 0;
    bool stpEnabled = true;
    int units = 0;
    bool applyEnabled = false;
    bool applied = false;

    Single StdTemperature = 519.67, StdPressure = 14.696, StdMolarVolume = 379.4;
    Single FlowTemperature, FlowPressure, FlowSCFM, FlowACFM, FlowGPM, FlowLBHR;

    std::string conversionCaption(int index) const;
    std::string unitLabel(const std::string& labelName) const; // "lblUnitsFT", ...

private:
    void convert();
    Single* fieldOf(int index);
    SettingsStore* store_;
};

} // namespace kestrova
