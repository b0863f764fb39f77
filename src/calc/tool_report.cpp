#include "calc/tool_report.h"

#include "frame/scripted_user_interface.h"
#include "tools/orifice/orifice_model.h"
#include "tools/pressure_drop/pressure_drop_model.h"

namespace kestrova::calc {

namespace {

const char* iconName(MessageIcon icon)
{
    switch (icon) {
    case MessageIcon::Warning: return "warning";
    case MessageIcon::Stop: return "stop";
    case MessageIcon::Information: return "info";
    case MessageIcon::Question: return "question";
    }
    return "info";
}

constexpr const char* kFieldNames[PressureDropData::kFieldCount] = {
    "LiquidFlow",      "GasFlow",         "LiquidDensity",    "GasDensity",      "VaporDensity",
    "ExitDensity",     "VaporViscosity",  "LiquidViscosity",  "SurfaceTension",  "InletPressure",
    "ExitPressure",    "SonicVelocity",   "InletTemperature", "ExitTemperature", "Roughness",
    "Diameter",        "PipeLength",      "ElevationChange",  "Velocity",        "ExitVelocity",
    "ConduitWidth",    "ConduitHeight",   "PressureDrop",     "Compressibility", "MolecularWeight",
    "HeatCapacityRatio", "Unused26",      "Unused27",         "AverageDensity",  "AverageViscosity",
    "AverageVelocity"};

std::string frameJson(const FrameControl& frame)
{
    return JsonObject().text("caption", frame.caption).boolean("bold", frame.bold).boolean("red", frame.red).str();
}

} // namespace

const char* const* pressureDropFieldNames()
{
    return kFieldNames;
}

std::string messagesJson(const ScriptedUserInterface& ui)
{
    std::string json = "[";
    for (const auto& m : ui.messages) {
        if (json.size() > 1)
            json += ", ";
        json += JsonObject().text("title", m.title).text("text", m.text).text("icon", iconName(m.icon)).str();
    }
    return json + "]";
}

void reportPressureDrop(const PressureDropModel& tool, const ScriptedUserInterface& ui, JsonObject& result)
{
    JsonObject record;
    PressureDropData copy = tool.record;
    const auto fields = copy.fields();
    for (int i = 0; i < PressureDropData::kFieldCount; ++i)
        record.single(kFieldNames[i], *fields[static_cast<size_t>(i)]);
    JsonObject texts;
    for (int i = 0; i < kPressureDropFields; ++i)
        texts.text("txtData(" + std::to_string(i) + ")", tool.txtData[static_cast<size_t>(i)].text);
    for (int i = 0; i < PressureDropModel::kDisplays; ++i)
        texts.text("txtDisplay(" + std::to_string(i) + ")", tool.txtDisplay[static_cast<size_t>(i)].text);
    JsonObject frames;
    frames.raw("Frame1(5)", frameJson(tool.Frame1[5])).raw("Frame1(8)", frameJson(tool.Frame1[8]));
    result.raw("record", record.str())
        .raw("texts", texts.str())
        .raw("frames", frames.str())
        .boolean("failed", tool.failed)
        .raw("messages", messagesJson(ui))
        .integer("beeps", ui.beeps);
}

void reportOrifice(OrificeModel& tool, JsonObject& result)
{
    JsonObject record;
    const auto fields = tool.record.fields();
    for (int i = 0; i < OrificeData::kFieldCount; ++i)
        record.single(OrificeData::names()[static_cast<size_t>(i)], *fields[static_cast<size_t>(i)]);
    JsonObject texts;
    for (int i = 0; i < OrificeModel::kFields; ++i)
        texts.text("txtData(" + std::to_string(i) + ")", tool.txtData[static_cast<size_t>(i)]);
    for (int i = 0; i < OrificeModel::kDisplays; ++i)
        texts.text("txtDisplay(" + std::to_string(i) + ")", tool.txtDisplay[static_cast<size_t>(i)]);
    texts.text("txtErrorLiquid", tool.txtErrorLiquid).text("txtErrorGas", tool.txtErrorGas);
    result.raw("record", record.str()).raw("texts", texts.str());
}

} // namespace kestrova::calc
