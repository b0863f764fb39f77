#include "forms/model/scripted_user_interface.h"


namespace kestrova {

MessageAnswer ScriptedUserInterface::ask(const std::string& title, const std::string& text, MessageIcon icon,
                                         MessageButtons buttons, MessageAnswer defaultAnswer)
{
    messages.push_back({title, text, icon, buttons});
    if (answers.empty())
        return defaultAnswer;
    const MessageAnswer answer = answers.front();
    answers.pop_front();
    return answer;
}

bool ScriptedUserInterface::runSaveAs()
{
    if (saveAsAnswers.empty())
        return false;
    const bool saved = saveAsAnswers.front();
    saveAsAnswers.pop_front();
    return saved;
}

Single ScriptedUserInterface::nextOr(std::deque<Single>& script, Single cancelValue)
{
    if (script.empty())
        return cancelValue;
    const Single value = script.front();
    script.pop_front();
    return value;
}

Single ScriptedUserInterface::SelectPipeID(const std::string& selector)
{
    pipeSelectors.push_back(selector);
    return next(pipeAnswers);
}

void ScriptedUserInterface::GetKValue()
{
    ++kValueCalls;
}

Single ScriptedUserInterface::GetFlowrateConversion(int fluid)
{
    flowFluids.push_back(fluid);
    return next(flowAnswers);
}

bool ScriptedUserInterface::GetPhysicalProperties(FluidKind, Single)
{
    const bool applied = !propertiesApplied.empty() && propertiesApplied.front();
    if (!propertiesApplied.empty())
        propertiesApplied.pop_front();
    return applied;
}

int ScriptedUserInterface::runReport(const std::string& title, const std::string& reportFile,
                                     const std::string& stagingPath, const std::string& table)
{
    reports.push_back({title, reportFile, table, stagedRow(QString::fromStdString(stagingPath), table)});
    return reportResult;
}

void ScriptedUserInterface::PumpSystemData(FormModel& segmentInput)
{
    ++segmentInputsShown;
    if (segmentInputSteps.empty())
        return;
    const auto step = std::move(segmentInputSteps.front());
    segmentInputSteps.pop_front();
    step(segmentInput);
}

} // namespace kestrova
