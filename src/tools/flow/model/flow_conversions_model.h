#pragma once
// The flow conversions tool (frmFlowConversions) without its window: standard
// and actual gas volumes, liquid gallons and mass, in American or metric
// units, and the mass flow it hands back through GetFlowrateConversion.

#include "forms/model/help_contexts.h"
#include "forms/model/form_model.h"
#include "numeric/single.h"

#include <array>
#include <functional>
#include <map>
#include <string>

namespace kestrova {

class SettingsStore;

namespace flow_conversions {
// txtData(i).
enum Field : int {
    SpecificGravity = 0, MolecularWeight = 1, FlowingTemperature = 2, FlowingPressure = 3, StandardVolumeFlow = 4,
    ActualVolumeFlow = 5, LiquidVolumeFlow = 6, MassFlow = 7,
};
inline constexpr int kFields = 8;
inline Control txtData(int i) { return {"txtData", i}; }
inline Control optConversion(int i) { return {"optConversion", i}; }
inline Control optSTP(int i) { return {"optSTP", i}; }
inline Control optUnits(int i) { return {"optUnits", i}; }
inline const Control cmdApply{"cmdApply"};
inline const Control cmdCancel{"cmdCancel"};
inline const Control stpFrame{"Frame1", 2};
// The unit labels beside the fields that have units.
inline const std::array<const char*, 6> kUnitLabels{"lblUnitsFT", "lblUnitsFP", "lblUnitsSCFM", "lblUnitsACFM",
                                                    "lblUnitsGPM", "lblUnitsLBHR"};
} // namespace flow_conversions

// The tool's stored singles: the standard condition and the flows in
// American units.
struct FlowConversionsData {
    Single StdTemperature = 519.67, StdPressure = 14.696, StdMolarVolume = 379.4;
    Single FlowTemperature, FlowPressure, FlowSCFM, FlowACFM, FlowGPM, FlowLBHR;
};

// Everything the flow conversions window shows, as the tool holds it.
struct FlowConversionsState {
    FlowConversionsData values;
    std::array<TextControl, flow_conversions::kFields> txtData;
    std::array<ButtonControl, 6> optConversion;
    std::array<ButtonControl, 3> optSTP;
    std::array<ButtonControl, 2> optUnits;
    std::array<LabelControl, 6> unitLabels; // in the order of kUnitLabels
    FrameControl stpFrame{"Standard Temperature/Pressure"};
    ButtonControl cmdApply;
    int conversion = 0;
    int stp = 0;
    int units = 0; // 0 American, 1 metric
    bool applied = false;
};

class FlowConversionsModel : public FormModel, private FlowConversionsState {
    Q_OBJECT

public:
    int helpTopic() const override { return help::FlowConversions; }
    // The settings store may be absent: then nothing is read or written.
    explicit FlowConversionsModel(SettingsStore* store, QObject* parent = nullptr);

    const FlowConversionsState& view() const { return *this; }

    void Form_Load();
    void Form_Unload();
    void optConversion_Click(int index);
    void optSTP_Click(int index);
    void optUnits_Click(int index);
    void txtData_LostFocus(int index);
    void cmdApply_Click();
    void cmdCancel_Click();

    // A text put into a field and read as leaving it does, without the
    // conversion; an empty or unreadable text throws the numeric fault.
    void commitText(int index, const std::string& text);

    // kind 1 liquid, 2 gas; `showModal` runs the dialog. 0 when not applied.
    Single GetFlowrateConversion(int kind, const std::function<void()>& showModal);

    void commit(const Control& field, const std::string& text) override;
    void click(const Control& control) override;

private:
    void store(int index);
    void convert();
    void clearTexts();
    void showChoices();
    Single* fieldOf(int index);
    SettingsStore* store_;
    std::array<bool, 6> conversionEnabled_{true, true, true, true, true, true};
    bool stpEnabled_ = true;
};

} // namespace kestrova
