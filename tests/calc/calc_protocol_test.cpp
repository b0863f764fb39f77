#include "calc/calc_protocol.h"
#include "calc/function_calls.h"
#include "numeric/display_mask.h"
#include "units/basConversions.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <sstream>
#include <string>
#include <vector>

using kestrova::calc::answerRequest;
using nlohmann::json;

namespace {

json answer(const std::string& line)
{
    const std::string text = answerRequest(line);
    EXPECT_EQ(text.find('\n'), std::string::npos) << text;
    return json::parse(text); // every answer is one JSON object
}

json call(const std::string& name, const json& args)
{
    return answer(json{{"id", 1}, {"call", name}, {"args", args}}.dump());
}

} // namespace

TEST(CalcProtocol, FunctionCallAnswersWithNineDigitSingles)
{
    EXPECT_EQ(answerRequest(R"({"id": 17, "call": "FrictionFactor", "args": {"reynolds": 100000, "relativeRoughness": 0.0002, "kind": 1, "aspectRatio": 1, "diameterRatio": 1}})"),
              R"({"id": 17, "ok": true, "result": {"value": 0.0190032367}})");
    // Doubles print with 17 digits.
    EXPECT_EQ(answerRequest(R"({"id": 2, "call": "PascalToUnit", "args": {"value": 101325, "index": 0}})"),
              R"({"id": 2, "ok": true, "result": {"value": 14.695975349999999}})");
}

TEST(CalcProtocol, IdIsEchoedAsGiven)
{
    EXPECT_EQ(answer(R"({"id": "case-7", "call": "MinorLossDrop", "args": {"resistanceCoefficient": 1, "velocity": 8.0218}})")["id"], "case-7");
    EXPECT_EQ(answer(R"({"id": {"a": [1, 2]}, "call": "Nope"})")["id"], json({{"a", {1, 2}}}));
    EXPECT_TRUE(answer(R"({"call": "MinorLossDrop", "args": {"resistanceCoefficient": 1, "velocity": 2}})")["id"].is_null());
}

TEST(CalcProtocol, ArgumentsAreRoundedLikeTheProgramsArguments)
{
    // 0.3 as a single argument is 0.300000011920929...
    const double v = static_cast<double>(0.3f);
    EXPECT_EQ(call("MinorLossDrop", {{"resistanceCoefficient", 1}, {"velocity", 0.3}})["result"]["value"].get<float>(),
              static_cast<float>(v * v / 64.3484));
    // A kind of 1.4 rounds to the integer 1; 2.5 to the even 2.
    const json pipe = call("FrictionFactor", {{"reynolds", 1000}, {"relativeRoughness", 0}, {"kind", 1.4}, {"aspectRatio", 1}, {"diameterRatio", 1}});
    EXPECT_EQ(pipe["result"]["value"].get<float>(), 0.064f);
    const json duct = call("FrictionFactor", {{"reynolds", 1000}, {"relativeRoughness", 0}, {"kind", 2.5}, {"aspectRatio", 1}, {"diameterRatio", 1}});
    EXPECT_NEAR(duct["result"]["value"].get<double>(), 0.0569128, 1e-7);
}

TEST(CalcProtocol, NumericFaultsAreAnswers)
{
    const json fault = call("FrictionFactor", {{"reynolds", 0}, {"relativeRoughness", 0}, {"kind", 1}, {"aspectRatio", 1}, {"diameterRatio", 1}});
    EXPECT_EQ(fault["ok"], false);
    EXPECT_EQ(fault["fault"], "numeric");
    EXPECT_NE(fault["at"].get<std::string>().find("FrictionFactor"), std::string::npos);
    // A huge argument cannot be a single; a huge integer cannot be 16 bits.
    EXPECT_EQ(call("MinorLossDrop", {{"resistanceCoefficient", 1e300}, {"velocity", 1}})["fault"], "numeric");
    EXPECT_EQ(call("TemperatureToUnit", {{"value", 1}, {"index", 70000}})["fault"], "numeric");
    // A conversion that leaves the double range faults rather than print infinity.
    EXPECT_EQ(call("PressureToUnit", {{"value", 1e306}, {"index", 6}})["fault"], "numeric");
    EXPECT_EQ(call("ParseNumber", {{"text", "1e999"}})["fault"], "numeric");
}

TEST(CalcProtocol, MalformedRequestsGetAClearError)
{
    for (const char* line : {"not json", "{\"id\": 1, \"call\": ", "[1, 2]", "42", "{\"id\": 3}",
                             "{\"id\": 3, \"call\": 5}", "{\"id\": 3, \"call\": \"Unknown\"}",
                             "{\"id\": 3, \"call\": \"FlowVelocity\", \"args\": [1]}",
                             "{\"id\": 3, \"call\": \"FlowVelocity\", \"args\": {\"massFlow\": 1}}",
                             "{\"id\": 3, \"call\": \"FlowVelocity\", \"args\": {\"massFlow\": \"NaN\", \"density\": 1, \"diameter\": 1}}",
                             "{\"id\": 3, \"call\": \"FlowVelocity\", \"args\": {\"massFlow\": NaN, \"density\": 1, \"diameter\": 1}}",
                             "{\"id\": 3, \"call\": \"FlowVelocity\", \"args\": {\"massFlow\": 1e400, \"density\": 1, \"diameter\": 1}}",
                             "{\"id\": 3, \"call\": \"PropertyCorrelation\", \"args\": {\"T\": 300, \"Tc\": 600, \"coefficients\": [1, 2], \"equation\": 7}}",
                             "{\"id\": 3, \"call\": \"Format\", \"args\": {\"value\": 1, \"mask\": 5}}",
                             "\xff\xfe"}) {
        const json reply = answer(line);
        EXPECT_EQ(reply["ok"], false) << line;
        EXPECT_TRUE(reply["error"].is_string() && !reply["error"].get<std::string>().empty()) << line;
    }
    const json missing = answer(R"({"id": 3, "call": "FlowVelocity", "args": {"massFlow": 1}})");
    EXPECT_NE(missing["error"].get<std::string>().find("density"), std::string::npos);
    // An element of an array argument is named with its index.
    EXPECT_EQ(answer(R"({"id": 4, "call": "PropertyCorrelation", "args": {"T": 300, "Tc": 600, "coefficients": [1, 2, "x", 4, 5], "equation": 7}})")["error"],
              "argument 'coefficients[2]' is not a number");
    EXPECT_EQ(answer(R"({"id": 5, "call": "PumpNetwork.NetCalc", "args": {"SegID": [0, 4.026, null]}})")["error"],
              "argument 'SegID[2]' is not a number");
}

TEST(CalcProtocol, GasFlowReportsMessagesAndBeeps)
{
    const json args = {{"massFlow", 30000}, {"flowArea", 0.0884}, {"temperature", 100}, {"pressure", 100},
                       {"compressibility", 1}, {"molecularWeight", 28.97}, {"heatCapacityRatio", 1.4},
                       {"pipeResistance", 500}, {"fittingResistance", 0}};
    const json adiabatic = call("AdiabaticGasFlow", args)["result"];
    EXPECT_EQ(adiabatic["flowType"], "Choked Flow at Outlet");
    EXPECT_EQ(adiabatic["beeps"], 1);
    EXPECT_EQ(adiabatic["messages"], json::array());
    EXPECT_TRUE(adiabatic.contains("outletTemperature"));
    const json isothermal = call("IsothermalGasFlow", args)["result"];
    EXPECT_FALSE(isothermal.contains("outletTemperature"));
    EXPECT_EQ(isothermal["beeps"], 1);
}

TEST(CalcProtocol, TwoPhaseWithoutCorrelationWritesNoPressureDrop)
{
    const json args = {{"orientation", "Vertical Up"}, {"diameter", 4.026}, {"roughness", 0.00015},
                       {"gasFlow", 5000}, {"liquidFlow", 20000}, {"gasDensity", 0.5}, {"liquidDensity", 62},
                       {"gasViscosity", 0.0078125}, {"liquidViscosity", 7.8125}, {"surfaceTension", 0.07}, {"length", 100}};
    const json result = call("TwoPhaseDrop", args)["result"];
    EXPECT_EQ(result["correlation"], "N/A");
    EXPECT_TRUE(result["pressureDrop"].is_null());
    EXPECT_EQ(result["mapCoordinates"].get<std::string>().rfind("Flow Regime Map:  X = ", 0), 0u);
}

TEST(CalcProtocol, OrificeMessageIsPassedInAndOut)
{
    json args = {{"D", 4.026}, {"beta", 0.5}, {"Re", 1e5}, {"tap", 0}, {"message", "kept"}};
    EXPECT_EQ(call("OrificeDischargeCoefficient", args)["result"]["message"], "kept");
    args["beta"] = 0.8;
    EXPECT_EQ(call("OrificeDischargeCoefficient", args)["result"]["message"],
              "Warning, Beta ratio outside the range:  0.1 <= Beta (d/D) <= 0.75");
}

TEST(CalcProtocol, FormatParseAndEveryConversionByName)
{
    EXPECT_EQ(call("Format", {{"value", 0}, {"mask", "#,###,###"}})["result"]["text"], "");
    EXPECT_EQ(call("ParseNumber", {{"text", "1,234.5"}})["result"]["value"], 1234.5);
    EXPECT_EQ(call("ParseNumber", {{"text", "abc"}})["result"]["value"], 0);
    EXPECT_EQ(call("DensityProductToUnit", {{"value", 2}, {"b", 500}, {"index", 1}})["result"]["value"], 1);
    // Each name reaches its own conversion: the answer is that function's
    // value, to the last bit, for the second and the last unit of its list.
    using namespace kestrova;
    const std::vector<std::pair<const char*, double (*)(double, UnitIndex)>> conversions{
        {"TemperatureToUnit", TemperatureToUnit},     {"TemperatureFromUnit", TemperatureFromUnit},
        {"PressureToUnit", PressureToUnit},           {"PressureFromUnit", PressureFromUnit},
        {"PascalToUnit", PascalToUnit},               {"DensityToUnit", DensityToUnit},
        {"DensityFromUnit", DensityFromUnit},         {"ViscosityToUnit", ViscosityToUnit},
        {"ViscosityFromUnit", ViscosityFromUnit},     {"SurfaceTensionToUnit", SurfaceTensionToUnit},
        {"SurfaceTensionFromUnit", SurfaceTensionFromUnit}, {"RoughnessToUnit", RoughnessToUnit},
        {"RoughnessFromUnit", RoughnessFromUnit},     {"FlowToUnit", FlowToUnit},
        {"FlowFromUnit", FlowFromUnit},               {"VelocityToUnit", VelocityToUnit},
        {"VelocityFromUnit", VelocityFromUnit},       {"LengthToUnit", LengthToUnit},
        {"LengthFromUnit", LengthFromUnit},           {"DiameterToUnit", DiameterToUnit},
        {"DiameterFromUnit", DiameterFromUnit},       {"HeatCapacityToUnit", HeatCapacityToUnit},
        {"HeatCapacityFromUnit", HeatCapacityFromUnit}, {"ExpansionToUnit", ExpansionToUnit},
        {"ExpansionFromUnit", ExpansionFromUnit},     {"PowerToUnit", PowerToUnit},
        {"HeadToUnit", HeadToUnit}};
    for (const auto& [name, conversion] : conversions) {
        for (UnitIndex index : {UnitIndex(1), UnitIndex(2), UnitIndex(7)}) {
            const double expected = conversion(16.04, index);
            const json reply = call(name, {{"value", 16.04}, {"index", index}});
            ASSERT_EQ(reply["ok"], true) << name;
            EXPECT_EQ(reply["result"]["value"].get<double>(), expected) << name << " unit " << index;
        }
    }
    EXPECT_EQ(call("TemperatureToUnit", {{"value", 32}, {"index", 1}})["result"]["value"], 0);
}

TEST(CalcToolCalls, PressureDropRunReportsRecordTextsAndFrames)
{
    const json args = {{"tab", 0},
                       {"crossSection", 0},
                       {"record", {{"LiquidFlow", 36000}, {"LiquidDensity", 62.4}, {"LiquidViscosity", 0.001},
                                   {"Diameter", 6.065}, {"Roughness", 0.00015}, {"PipeLength", 100}}},
                       {"texts", {{"txtDisplay(12)", "0.5"}}},
                       {"units", {{"cboUnits(10)", 5}}}};
    const json result = call("PressureDrop.CalculateResults", args)["result"];
    EXPECT_EQ(result["failed"], false);
    EXPECT_NEAR(result["record"]["Velocity"].get<double>(), 0.79878, 1e-5);
    EXPECT_EQ(result["texts"]["txtData(9)"], "0.799");
    EXPECT_EQ(result["texts"]["txtDisplay(2)"], "Turbulent");
    // The drop is shown in kPa: the unit list of field 10 was set to index 5.
    EXPECT_EQ(result["texts"]["txtData(10)"],
              kestrova::formatMask(result["record"]["PressureDrop"].get<double>() * 6.894733261, "##,##0.00"));
    EXPECT_EQ(result["texts"].size(), 46u + 21u);
    EXPECT_EQ(result["record"].size(), 31u);
    EXPECT_EQ(result["frames"]["Frame1(5)"]["caption"], "Calculated Results");
    EXPECT_EQ(result["messages"], json::array());
}

TEST(CalcToolCalls, PressureDropTextsAreCommittedInTheirUnits)
{
    // 100 m typed with the length list at m is stored as 328.08 ft.
    const json args = {{"units", {{"cboUnits(8)", 4}}}, {"texts", {{"txtData(8)", "100"}}}};
    const json result = call("PressureDrop.CalculateResults", args)["result"];
    EXPECT_NEAR(result["record"]["PipeLength"].get<double>(), 328.084, 1e-3);
    EXPECT_EQ(result["failed"], true); // nothing else was given: the run fails quietly
    EXPECT_EQ(result["texts"]["txtData(10)"], "0.00");
}

TEST(CalcToolCalls, AChokedGasLineBeepsAndTurnsTheFrameRed)
{
    const json args = {{"tab", 1},
                       {"crossSection", 3},
                       {"calcType", 1},
                       {"record", {{"GasFlow", 30000}, {"InletPressure", 100}, {"InletTemperature", 100},
                                   {"VaporViscosity", 0.000018}, {"Diameter", 4.026}, {"Roughness", 0.00015},
                                   {"PipeLength", 20000}}},
                       {"texts", {{"txtDisplay(4)", "28.97"}, {"txtDisplay(5)", "1"}, {"txtDisplay(6)", "1.4"}}}};
    const json result = call("PressureDrop.CalculateResults", args)["result"];
    EXPECT_EQ(result["frames"]["Frame1(5)"]["caption"], "Calculated Results, Flow Type = Choked Flow at Outlet");
    EXPECT_EQ(result["frames"]["Frame1(5)"]["red"], true);
    EXPECT_GE(result["beeps"].get<int>(), 1);
    EXPECT_EQ(result["record"]["ExitTemperature"], result["record"]["InletTemperature"]);
}

TEST(CalcToolCalls, UnknownControlsAndFieldsAreErrors)
{
    EXPECT_EQ(call("PressureDrop.CalculateResults", {{"texts", {{"txtData(99)", "1"}}}})["ok"], false);
    EXPECT_EQ(call("PressureDrop.CalculateResults", {{"record", {{"Nonsense", 1}}}})["ok"], false);
    EXPECT_EQ(call("PressureDrop.CalculateResults", {{"units", {{"cboUnits(3)", "ft"}}}})["ok"], false);
    EXPECT_EQ(call("PressureDrop.CalculateResults", {{"record", {{"LiquidFlow", 1e39}}}})["fault"], "numeric");
}

TEST(CalcToolCalls, DialogToolsAnswerTheirCalls)
{
    const json flow = call("FlowConversions.Convert", {{"conversion", 0}, {"stp", 0}, {"units", 0}, {"field", 4},
                                                        {"texts", {{"txtData(1)", "16.04"}, {"txtData(4)", "1000"}}}})["result"];
    // The molecular weight is read as a single: 2,536.6370, not the 2,536.6367 of doubles.
    EXPECT_EQ(flow["texts"]["txtData(7)"], "2,536.6370");
    EXPECT_EQ(flow["fields"]["FlowLBHR"].get<float>(), 2536.636962890625f);

    const json density = call("GasDensity.Compute", {{"temperature", 60}, {"pressure", 14.696},
                                                      {"molecularWeight", 28.97}, {"compressibility", 1}})["result"];
    EXPECT_NEAR(density["density"].get<double>(), 0.07635, 1e-5);
    EXPECT_EQ(density["texts"]["txtData(2)"], "0.0763");

    const json zValue = call("CompressFactor.ComputeZ", {{"temperature", 100}, {"pressure", 1000},
                                                         {"criticalTemperature", -116.65}, {"criticalPressure", 667},
                                                         {"acentricText", "0.011"}, {"eos", 2}, {"hydrogen", false}})["result"];
    EXPECT_EQ(zValue["txtData(5)"], "0.8880");
    const json noZ = call("CompressFactor.ComputeZ", {{"temperature", 0}, {"pressure", 0}, {"criticalTemperature", 0},
                                                      {"criticalPressure", 0}, {"eos", 0}})["result"];
    EXPECT_EQ(noZ["txtData(5)"], "");

    const json ratio = call("HeatCapRatio.ComputeRatio", {{"temperature", 60}, {"pressure", 14.696},
                                                          {"criticalTemperature", -116.65}, {"criticalPressure", 667},
                                                          {"heatCapacity", 5}})["result"];
    EXPECT_EQ(ratio["errorShown"], true);

    json quantities = json::array();
    for (int i = 0; i < 35; ++i)
        quantities.push_back(i == 4 ? "2" : i == 23 ? "1" : "");
    const json sums = call("MinorLosses.Sum", {{"quantities", quantities}, {"kValues", {"", "", "0.5"}}})["result"];
    EXPECT_EQ(sums["txtTotalK1"], "3,100");
    EXPECT_EQ(sums["txtTotalK2"], "2.30");
    EXPECT_EQ(sums["txtTotalK"], "0.50");

    EXPECT_EQ(call("Contractions.Row", {{"row", 0}, {"angle", "30"}, {"beta", "0.5"}})["result"]["txtKValue(0)"], "0.156");
    EXPECT_EQ(call("Enlargements.Row", {{"row", 1}, {"angle", "90"}, {"beta", "0.5"}})["result"]["txtKValue(1)"], "0.563");
    EXPECT_EQ(call("Enlargements.Row", {{"row", 12}, {"beta", "0.5"}})["ok"], false);
}

TEST(CalcToolCalls, ReducerRowsValidateAsTheFieldsAreLeft)
{
    // The angle is left first: out of range it gives its message, empties the
    // K and the beta is never reached.
    for (const char* angle : {"0", "180", "200"}) {
        const json row = call("Contractions.Row", {{"row", 2}, {"angle", angle}, {"beta", "2"}})["result"];
        EXPECT_EQ(row["txtKValue(2)"], "") << angle;
        ASSERT_EQ(row["messages"].size(), 1u) << angle;
        EXPECT_EQ(row["messages"][0]["title"], "Contractions");
        EXPECT_EQ(row["messages"][0]["text"], "Invalid angle entered.\n \nThe angle entered must be between 0 and 180 degrees.");
        EXPECT_EQ(row["messages"][0]["icon"], "stop");
    }
    for (const char* beta : {"0", "1", "1.5"}) {
        const json row = call("Enlargements.Row", {{"row", 7}, {"beta", beta}})["result"];
        EXPECT_EQ(row["txtKValue(7)"], "") << beta;
        ASSERT_EQ(row["messages"].size(), 1u) << beta;
        EXPECT_EQ(row["messages"][0]["title"], "Englargements");
        EXPECT_EQ(row["messages"][0]["text"], "Invalid beta entered.\n \nBeta must be between 0 and 1.");
    }
    // Within range there is no message; an angle with no beta has no K.
    const json fine = call("Enlargements.Row", {{"row", 0}, {"angle", "30"}, {"beta", "0.5"}})["result"];
    EXPECT_EQ(fine["txtKValue(0)"], "0.381");
    EXPECT_TRUE(fine["messages"].empty());
    EXPECT_EQ(call("Contractions.Row", {{"row", 0}, {"angle", "30"}})["result"]["txtKValue(0)"], "");
}

TEST(CalcProtocol, LinesBeyondReasonGetAnErrorAndTheNextLineIsRead)
{
    // An id nested seventy thousand deep, a line of two mebibytes, then an
    // ordinary request: three answers, the third a result.
    const std::string nested = R"({"id": )" + std::string(70000, '[') + std::string(70000, ']') +
                               R"(, "call": "MinorLossDrop", "args": {"resistanceCoefficient": 1, "velocity": 2}})";
    const std::string huge = R"({"id": ")" + std::string(2u << 20, 'x') + R"("})";
    const std::string good = R"({"id": 3, "call": "MinorLossDrop", "args": {"resistanceCoefficient": 1, "velocity": 2}})";
    std::istringstream in(nested + "\n" + huge + "\r\n" + good + "\n");
    std::vector<json> answers;
    std::string line;
    bool tooLong = false;
    while (kestrova::calc::readRequestLine(in, line, tooLong)) {
        EXPECT_LE(line.size(), kestrova::calc::kMaxRequestBytes);
        answers.push_back(json::parse(tooLong ? kestrova::calc::tooLongAnswer() : answerRequest(line)));
    }
    ASSERT_EQ(answers.size(), 3u);
    EXPECT_EQ(answers[0]["ok"], false);
    EXPECT_NE(answers[0]["error"].get<std::string>().find("deeper than 64"), std::string::npos);
    EXPECT_EQ(answers[1]["ok"], false);
    EXPECT_NE(answers[1]["error"].get<std::string>().find("was not read"), std::string::npos);
    EXPECT_EQ(answers[2]["ok"], true);
    EXPECT_EQ(answers[2]["id"], 3);
    // Brackets inside a text are text: they do not count as nesting.
    EXPECT_EQ(answer(R"({"id": ")" + std::string(1000, '[') + R"(", "call": "Nope"})")["error"], "unknown call 'Nope'");
    // A nesting just within the limit is still answered.
    EXPECT_EQ(answer(R"({"id": )" + std::string(62, '[') + std::string(62, ']') + R"(, "call": "Nope"})")["error"],
              "unknown call 'Nope'");
}

TEST(CalcProtocol, AMaskAsLongAsALineIsFormattedInOnePass)
{
    // A quarter of a mebibyte of zero placeholders: every one a digit.
    const json result = call("Format", {{"value", 12.5}, {"mask", std::string(250000, '0') + ".0"}})["result"];
    const std::string text = result["text"];
    ASSERT_EQ(text.size(), 250002u);
    EXPECT_EQ(text.substr(text.size() - 5), "012.5");
    EXPECT_EQ(text.find_first_not_of('0'), 249998u);
}
