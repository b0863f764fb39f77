#include "calc/tool_report.h"

#include "forms/model/scripted_user_interface.h"
#include "tools/orifice/model/orifice_model.h"
#include "tools/pump_network/model/pump_network_model.h"
#include "tools/pressure_drop/model/pressure_drop_model.h"

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

void reportPressureDrop(const PressureDropModel& model, const ScriptedUserInterface& ui, JsonObject& result)
{
    const PressureDropState& tool = model.view();
    JsonObject record;
    PressureDropData copy = tool.record;
    const auto fields = copy.fields();
    for (int i = 0; i < PressureDropData::kFieldCount; ++i)
        record.single(kFieldNames[i], *fields[static_cast<size_t>(i)]);
    JsonObject texts;
    for (int i = 0; i < kPressureDropFields; ++i)
        texts.text(Control{"txtData", i}.name(), tool.txtData[static_cast<size_t>(i)].text);
    for (int i = 0; i < PressureDropModel::kDisplays; ++i)
        texts.text(Control{"txtDisplay", i}.name(), tool.txtDisplay[static_cast<size_t>(i)].text);
    JsonObject frames;
    frames.raw("Frame1(5)", frameJson(tool.Frame1[pressure_drop::GasResultsFrame]))
        .raw("Frame1(8)", frameJson(tool.Frame1[pressure_drop::TwoPhaseResultsFrame]));
    result.raw("record", record.str())
        .raw("texts", texts.str())
        .raw("frames", frames.str())
        .boolean("failed", tool.failed)
        .raw("messages", messagesJson(ui))
        .integer("beeps", ui.beeps);
}

void reportOrifice(const OrificeModel& model, JsonObject& result)
{
    const OrificeState& tool = model.view();
    JsonObject record;
    OrificeData copy = tool.record;
    const auto fields = copy.fields();
    for (int i = 0; i < OrificeData::kFieldCount; ++i)
        record.single(OrificeData::names()[static_cast<size_t>(i)], *fields[static_cast<size_t>(i)]);
    JsonObject texts;
    for (int i = 0; i < OrificeModel::kFields; ++i)
        texts.text(Control{"txtData", i}.name(), tool.txtData[static_cast<size_t>(i)].text);
    for (int i = 0; i < OrificeModel::kDisplays; ++i)
        texts.text(Control{"txtDisplay", i}.name(), tool.txtDisplay[static_cast<size_t>(i)].text);
    texts.text("txtErrorLiquid", tool.txtErrorLiquid.text).text("txtErrorGas", tool.txtErrorGas.text);
    result.raw("record", record.str()).raw("texts", texts.str());
}

std::vector<std::pair<const char*, std::array<Single, 12>*>> networkResultArrays(NetworkState& s)
{
    return {{"NetVel", &s.NetVel},       {"NetRe", &s.NetRe},   {"NetFd", &s.NetFd},
            {"NetDpLine", &s.NetDpLine}, {"NetDpCV", &s.NetDpCV}, {"NetDpStatic", &s.NetDpStatic}};
}

Single* networkScalar(NetworkState& s, const std::string& name)
{
    const std::pair<const char*, Single*> scalars[] = {
        {"PumpHead", &s.PumpHead}, {"VaporPress", &s.VaporPress},       {"MinValveDp", &s.MinValveDp},
        {"NPSHa", &s.NPSHa},       {"MotorSize", &s.MotorSize},         {"LinePercentDp", &s.LinePercentDp},
        {"PumpEff", &s.PumpEff},   {"PDischarge", &s.PDischarge},       {"PSuction", &s.PSuction}};
    for (const auto& [key, value] : scalars)
        if (name == key)
            return value;
    return nullptr;
}

void reportPumpNetwork(const PumpNetworkModel& tool, JsonObject& result)
{
    const PumpNetworkState& form = tool.view();
    NetworkState s = form.network;
    const SegmentData& g = form.segments;
    const auto array = [](const std::array<Single, 12>& values) {
        std::string json = "[";
        for (size_t i = 0; i < values.size(); ++i)
            json.append(i ? ", " : "").append(singleText(values[i]));
        return json.append("]");
    };
    const std::pair<const char*, const std::array<Single, 12>*> inputs[] = {
        {"NetFlow", &s.NetFlow}, {"NetPDest", &s.NetPDest}, {"NetHeight", &s.NetHeight}, {"SegLength", &g.SegLength},
        {"SegID", &g.SegID},     {"SegRough", &g.SegRough}, {"SegDensity", &g.SegDensity}, {"SegVisc", &g.SegVisc},
        {"SegDpAdd", &g.SegDpAdd}, {"SegK1", &g.SegK1},     {"SegK2", &g.SegK2},         {"SegK3", &g.SegK3}};
    for (const auto& [name, values] : inputs)
        result.raw(name, array(*values));
    for (const auto& [name, values] : networkResultArrays(s))
        result.raw(name, array(*values));
    for (const char* name : {"PumpHead", "VaporPress", "MinValveDp", "NPSHa", "MotorSize", "LinePercentDp", "PumpEff",
                             "PDischarge", "PSuction"})
        result.single(name, *networkScalar(s, name));
    JsonObject texts;
    for (int i = 0; i < PumpNetworkModel::kFields; ++i)
        texts.text(Control{"txtData", i}.name(), form.txtData[static_cast<size_t>(i)].text);
    std::string rows = "[";
    for (size_t r = 0; r < form.grid.size(); ++r) {
        rows += r ? ", [" : "[";
        for (size_t c = 0; c < form.grid[r].size(); ++c)
            appendQuoted(rows.append(c ? ", " : ""), form.grid[r][c]);
        rows += "]";
    }
    result.raw("texts", texts.str()).raw("grid", rows + "]");
}

} // namespace kestrova::calc
