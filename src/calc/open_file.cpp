#include "calc/open_file.h"

#include "calc/json_result.h"
#include "calc/tool_calls.h"
#include "calc/tool_report.h"
#include "forms/model/document_file.h"
#include "forms/store/project_file.h"
#include "forms/model/scripted_user_interface.h"
#include "tools/orifice/model/orifice_model.h"
#include "tools/pressure_drop/model/pressure_drop_model.h"

#include <QFileInfo>

namespace kestrova::calc {

namespace {

std::string refusal(const std::string& message, bool& ok)
{
    ok = false;
    return JsonObject().boolean("ok", false).text("error", message).str();
}

std::string openOrificeFile(const std::string& path, bool& ok)
{
    resetSharedState();
    ScriptedUserInterface ui;
    OrificeModel tool(ui);
    tool.Form_Load();
    tool.Form_Activate();
    tool.setStrFileName(path);
    if (!tool.OpenSaveData("Open"))
        return refusal(ui.messages.empty() ? "The file could not be opened." : ui.messages.back().text, ok);
    ok = true;
    JsonObject result;
    reportOrifice(tool, result);
    return JsonObject().boolean("ok", true).integer("kind", 1).raw("result", result.str()).str();
}

} // namespace

std::string openProjectFile(const std::string& path, bool& ok)
{
    const QString file = QString::fromStdString(path);
    const QFileInfo info(file);
    if (!info.exists() || !info.isFile())
        return refusal("File does not exist.", ok);
    QByteArray bytes;
    if (!readWholeFile(file, bytes))
        return refusal("The file could not be read.", ok);
    const std::int16_t kind = fileKindOf(bytes);
    if (kind < 1 || kind > 3)
        return refusal("This is not a Kestrova data file.", ok);
    if (kind == static_cast<std::int16_t>(FileKind::PumpNetwork))
        return refusal("Pump network files cannot be opened by kestrova-calc in this version.", ok);
    if (kind == static_cast<std::int16_t>(FileKind::OrificePlates))
        return openOrificeFile(info.absoluteFilePath().toStdString(), ok);

    resetSharedState();
    ScriptedUserInterface ui;
    PressureDropModel tool(ui);
    tool.Form_Load();
    tool.setStrFileName(info.absoluteFilePath().toStdString());
    if (!tool.OpenSaveData("Open"))
        return refusal(ui.messages.empty() ? "The file could not be opened." : ui.messages.back().text, ok);
    tool.Form_Activate();

    ok = true;
    JsonObject result;
    reportPressureDrop(tool, ui, result);
    return JsonObject().boolean("ok", true).integer("kind", kind).raw("result", result.str()).str();
}

} // namespace kestrova::calc
