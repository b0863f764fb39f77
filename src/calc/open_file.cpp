#include "calc/open_file.h"

#include "calc/json_result.h"
#include "calc/tool_calls.h"
#include "calc/tool_report.h"
#include "forms/model/document_file.h"
#include "frame/model/shared_stores.h"
#include "forms/store/project_file.h"
#include "forms/model/scripted_user_interface.h"
#include "tools/orifice/model/orifice_model.h"
#include "tools/pressure_drop/model/pressure_drop_model.h"
#include "tools/pump_network/model/pump_network_model.h"

#include <QFileInfo>

namespace kestrova::calc {

namespace {

std::string refusal(const std::string& message, bool& ok)
{
    ok = false;
    return JsonObject().boolean("ok", false).text("error", message).str();
}

// A file opened in its tool as File Open opens it, then reported as the
// tool's call would report it. The pressure drop tool takes the global units
// after the file (its activation follows the open); the others before it.
template <typename Model, typename Report>
std::string openInTool(const std::string& path, FileKind kind, bool activateAfterOpen, bool& ok, Report report)
{
    resetSharedStores();
    ScriptedUserInterface ui;
    Model tool(ui);
    tool.Form_Load();
    if (!activateAfterOpen)
        tool.Form_Activate();
    tool.setStrFileName(path);
    if (!tool.OpenSaveData("Open"))
        return refusal(ui.messages.empty() ? "The file could not be opened." : ui.messages.back().text, ok);
    if (activateAfterOpen)
        tool.Form_Activate();
    ok = true;
    JsonObject result;
    report(tool, ui, result);
    return JsonObject()
        .boolean("ok", true)
        .integer("kind", static_cast<int>(kind))
        .raw("result", result.str())
        .str();
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
    const std::string absolute = info.absoluteFilePath().toStdString();
    switch (static_cast<FileKind>(kind)) {
    case FileKind::PumpNetwork:
        return openInTool<PumpNetworkModel>(absolute, FileKind::PumpNetwork, false, ok,
                                            [](const auto& tool, const auto&, JsonObject& result) {
                                                reportPumpNetwork(tool, result);
                                            });
    case FileKind::OrificePlates:
        return openInTool<OrificeModel>(absolute, FileKind::OrificePlates, false, ok,
                                        [](const auto& tool, const auto&, JsonObject& result) {
                                            reportOrifice(tool, result);
                                        });
    default:
        return openInTool<PressureDropModel>(absolute, FileKind::PressureDrop, true, ok, reportPressureDrop);
    }
}

} // namespace kestrova::calc
