#pragma once
// A user interface without windows: it keeps every message, beep and status
// text, and answers questions and dialog tools from a script prepared in
// advance. Tests and kestrova-calc use it.

#include "forms/model/user_interface.h"
#include "forms/store/staging.h"

#include <deque>
#include <functional>
#include <optional>
#include <map>
#include <string>
#include <vector>

namespace kestrova {

class ScriptedUserInterface : public UserInterface {
public:
    struct Message {
        std::string title, text;
        MessageIcon icon;
        MessageButtons buttons;
    };

    MessageAnswer ask(const std::string& title, const std::string& text, MessageIcon icon, MessageButtons buttons,
                      MessageAnswer defaultAnswer) override;
    void beep() override { ++beeps; }
    void setStatusText(const std::string& text) override { statusText = text; }
    void setBusyPointer(bool busy) override { busyPointer = busy; }
    void setToolbarButtonEnabled(const std::string& key, bool enabled) override { toolbar[key] = enabled; }
    bool runSaveAs() override;

    Single SelectPipeID(const std::string& selector) override;
    Single SelectRoughness() override { return next(roughnessAnswers); }
    void GetKValue() override;
    Single GetContractionK() override { return nextOr(contractionAnswers, 1.0); }
    Single GetEnlargementK() override { return nextOr(enlargementAnswers, 1.0); }
    Single GetZValue(Single, Single) override { return next(zAnswers); }
    Single GetHeatCapRatioValue(Single, Single) override { return next(ratioAnswers); }
    Single GetFlowrateConversion(int fluid) override;
    Single GetGasDensity(Single, Single) override { return next(densityAnswers); }
    bool GetPhysicalProperties(FluidKind fluid, Single temperature) override;
    // The next of `segmentInputSteps` does what the user does in the dialog; without one it closes at once.
    void PumpSystemData(FormModel& segmentInput) override;
    void showRegimeMap(const std::string& orientation) override { regimeMapsShown.push_back(orientation); }
    void showHelp(int context) override { helpShown.push_back(context); }
    // Keeps the staged row as the report found it, and answers `reportResult`.
    int runReport(const std::string& title, const std::string& reportFile, const std::string& stagingPath,
                  const std::string& table) override;

    // What the user will answer, in order; an empty script answers the
    // default button, and a dialog tool as a cancel.
    std::deque<MessageAnswer> answers;
    std::deque<Single> pipeAnswers, roughnessAnswers, zAnswers, ratioAnswers, flowAnswers, densityAnswers;
    std::deque<Single> contractionAnswers, enlargementAnswers; // an empty script cancels: 1
    std::deque<bool> saveAsAnswers;
    // Properties to apply at the next GetPhysicalProperties; none means cancel.
    std::deque<bool> propertiesApplied;
    std::deque<std::function<void(FormModel&)>> segmentInputSteps;
    int segmentInputsShown = 0;

    std::vector<Message> messages;
    int beeps = 0;
    std::string statusText;
    bool busyPointer = false;
    std::map<std::string, bool> toolbar;
    std::vector<std::string> pipeSelectors;
    std::vector<int> flowFluids;
    std::vector<std::string> regimeMapsShown;
    std::vector<int> helpShown; // the help topics asked for, by context number
    int kValueCalls = 0;
    struct ReportRun {
        std::string title, reportFile, table;
        std::optional<DataSheetColumns> row;
    };
    std::vector<ReportRun> reports;
    int reportResult = 0;

private:
    static Single next(std::deque<Single>& script) { return nextOr(script, 0.0); }
    static Single nextOr(std::deque<Single>& script, Single cancelValue);
};

} // namespace kestrova
