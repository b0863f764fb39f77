// The kestrova-calc calls of the orifice and pump network tools: the model
// run once on the arguments, every field text and grid cell reported, and
// clear errors for arguments the tools cannot take.

#include "calc/calc_protocol.h"
#include "forms/store/global_units.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <string>

using kestrova::calc::answerRequest;
using nlohmann::json;

namespace {

json call(const std::string& name, const json& args)
{
    const std::string text = answerRequest(json{{"id", 1}, {"call", name}, {"args", args}}.dump());
    EXPECT_EQ(text.find('\n'), std::string::npos);
    return json::parse(text);
}

json waterPlate()
{
    return {{"pipeID", 4.026},           {"orificeDiameter", 2.013}, {"liquidDensity", 62.4},
            {"liquidViscosity", 0.001}, {"differentialPressure", 10}, {"temperature", 68}};
}

json line(std::initializer_list<double> values)
{
    return json(values);
}

json waterNetwork()
{
    json args{{"NetFlow", line({0, 0, 0, 50000})}, {"NetPDest", line({0, 0, 0, 100, 0, 200})}, {"MinValveDp", 0}};
    json id = json::array(), rho = json::array(), mu = json::array();
    for (int i = 0; i < 12; ++i) {
        id.push_back(i ? 4.026 : 0);
        rho.push_back(i ? 62.4 : 0);
        mu.push_back(i ? 0.001 : 0);
    }
    args["SegID"] = id;
    args["SegDensity"] = rho;
    args["SegVisc"] = mu;
    return args;
}

} // namespace

TEST(OrificeCall, SolvesEachUnknownAndReportsEveryText)
{
    json flow = call("OrificePlates.ComputeOrifice", {{"tab", 0}, {"compute", 0}, {"tap", 0}, {"record", waterPlate()}});
    ASSERT_TRUE(flow["ok"]) << flow.dump();
    const json& r = flow["result"];
    EXPECT_NEAR(r["record"]["liquidFlow"].get<double>(), 119542.227, 0.01);
    EXPECT_EQ(r["texts"]["txtData(0)"], "119,542.23");
    EXPECT_EQ(r["texts"]["txtDisplay(1)"], "0.6050");
    EXPECT_EQ(r["texts"]["txtErrorLiquid"], "");
    EXPECT_EQ(r["texts"].size(), 29u + 13u + 2u);

    // The flow back in, the differential pressure out.
    json record = waterPlate();
    record["liquidFlow"] = r["record"]["liquidFlow"];
    record["differentialPressure"] = 0;
    json dp = call("OrificePlates.ComputeOrifice", {{"compute", 1}, {"record", record}});
    EXPECT_NEAR(dp["result"]["record"]["differentialPressure"].get<double>(), 10, 2e-3);

    // The bore, shown in mm on the unit list of txtData(2).
    record["differentialPressure"] = 10;
    record["orificeDiameter"] = 0;
    json bore = call("OrificePlates.ComputeOrifice",
                     {{"compute", 2}, {"record", record}, {"units", {{"cboUnits(2)", 3}}}});
    EXPECT_EQ(bore["result"]["texts"]["txtData(2)"], "51.13"); // mm
    EXPECT_EQ(bore["result"]["texts"]["txtDisplay(0)"], "0.5000");
}

TEST(OrificeCall, TheGasTabTakesKAsATypedText)
{
    json record = waterPlate();
    record["gasDensity"] = 0.5;
    record["gasViscosity"] = 0.000018;
    record["inletPressure"] = 100;
    record["differentialPressure"] = 5;
    json gas = call("OrificePlates.ComputeOrifice",
                    {{"tab", 1}, {"compute", 3}, {"record", record}, {"texts", {{"txtDisplay(5)", "1.4"}}}});
    ASSERT_TRUE(gas["ok"]) << gas.dump();
    EXPECT_NEAR(gas["result"]["record"]["heatCapacityRatio"].get<double>(), 1.4, 1e-6);
    EXPECT_EQ(gas["result"]["texts"]["txtDisplay(10)"], "0.9846");
    EXPECT_EQ(gas["result"]["texts"]["txtDisplay(11)"], "0.9500");
    // A gas run that succeeds never touches the liquid tab's box: it keeps the
    // message that the load's own run, on the empty record, put there.
    EXPECT_EQ(gas["result"]["texts"]["txtErrorLiquid"], "Pipe ID cannot be zero");
    // Without k the expansion factor divides by zero: the run stops with the
    // liquid tab's standing text and no result shown.
    json without = call("OrificePlates.ComputeOrifice", {{"tab", 1}, {"record", record}});
    EXPECT_EQ(without["result"]["texts"]["txtErrorLiquid"], "Pipe ID cannot be zero");
    EXPECT_EQ(without["result"]["texts"]["txtDisplay(7)"], "");
}

TEST(OrificeCall, RefusesWhatItCannotTake)
{
    json unknown = call("OrificePlates.ComputeOrifice", {{"record", {{"pipeDiameter", 4}}}});
    EXPECT_FALSE(unknown["ok"]);
    EXPECT_EQ(unknown["error"], "unknown record field 'pipeDiameter'");
    json control = call("OrificePlates.ComputeOrifice", {{"units", {{"cboUnits(29)", 1}}}});
    EXPECT_EQ(control["error"], "unknown control 'cboUnits(29)'");
    json text = call("OrificePlates.ComputeOrifice", {{"texts", {{"txtDisplay(5)", 1.4}}}});
    EXPECT_FALSE(text["ok"]);
    json huge = call("OrificePlates.ComputeOrifice", {{"record", {{"pipeID", 1e300}}}});
    EXPECT_EQ(huge["fault"], "numeric");
}

TEST(PumpNetworkCall, TheHandExampleWithItsGrid)
{
    json answer = call("PumpNetwork.NetCalc", waterNetwork());
    ASSERT_TRUE(answer["ok"]) << answer.dump();
    const json& r = answer["result"];
    EXPECT_EQ(r["PumpHead"], 231);
    EXPECT_NEAR(r["MotorSize"].get<double>(), 5.83333302, 1e-7);
    EXPECT_EQ(r["NetFlow"][1], 50000); // summed back to the pump
    EXPECT_EQ(r["NetDpCV"][3], 100);
    EXPECT_EQ(r["texts"]["txtData(27)"], "231.00");
    ASSERT_EQ(r["grid"].size(), 17u);
    ASSERT_EQ(r["grid"][0].size(), 13u);
    EXPECT_EQ(r["grid"][0][1], "Line:");
    EXPECT_EQ(r["grid"][1][4], "50,000");
    EXPECT_EQ(r["grid"][1][6], ""); // zeros show empty
    EXPECT_EQ(r["grid"][11][2], "78,436");
    EXPECT_EQ(r["grid"][16][6], "200.00");
}

TEST(PumpNetworkCall, UnitsAndAnEarlierPass)
{
    json args = waterNetwork();
    args["units"] = {{"cboUnits(34)", 3}, {"cboUnits(27)", 1}}; // grid flow in kg/hr, head in m
    args["state"] = {{"NPSHa", 12.5}};
    json answer = call("PumpNetwork.NetCalc", args);
    const json& r = answer["result"];
    EXPECT_EQ(r["grid"][1][4], "22,679.62");
    EXPECT_EQ(r["texts"]["txtData(27)"], "70.41");
    EXPECT_EQ(r["texts"]["txtData(15)"], "50,000"); // the field keeps its own unit
    EXPECT_EQ(r["NPSHa"], 12.5); // no suction line drop: the earlier value stands
}

TEST(PumpNetworkCall, RefusesMalformedArrays)
{
    json tooLong = call("PumpNetwork.NetCalc", {{"NetFlow", json::array({0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12})}});
    EXPECT_FALSE(tooLong["ok"]);
    EXPECT_EQ(tooLong["error"], "argument 'NetFlow' must be an array of at most 12 numbers");
    json text = call("PumpNetwork.NetCalc", {{"SegID", json::array({0, "4"})}});
    EXPECT_FALSE(text["ok"]);
    json notArray = call("PumpNetwork.NetCalc", {{"SegID", 4}});
    EXPECT_FALSE(notArray["ok"]);
}
