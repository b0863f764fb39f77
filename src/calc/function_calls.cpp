#include "calc/function_calls.h"

#include "calc/tool_calls.h"
#include "calc/tool_report.h"
#include "forms/model/scripted_user_interface.h"
#include "hydraulics/basTransportFunctions.h"
#include "numeric/display_mask.h"
#include "numeric/field_text.h"
#include "tools/orifice/calc/basOrificeFunctions.h"
#include "tools/properties/calc/property_correlation.h"
#include "units/basConversions.h"

namespace kestrova::calc {

namespace {

using Calls = std::map<std::string, CallSpec, std::less<>>;

void addFrictionCalls(Calls& calls)
{
    calls["ReynoldsNumber"] = {{"density", "diameter", "velocity", "viscosity", "kind", "dimension1", "dimension2"}, [](const RequestArgs& a, JsonObject& r) {
        r.single("value", ReynoldsNumber(a.single("density"), a.single("diameter"), a.single("velocity"),
                                         a.single("viscosity"), a.integer16("kind"), a.single("dimension1"),
                                         a.single("dimension2")));
    }};
    calls["ReynoldsFromMassFlow"] = {{"diameter", "massFlow", "viscosity"}, [](const RequestArgs& a, JsonObject& r) {
        r.real("value", ReynoldsFromMassFlow(a.single("diameter"), a.single("massFlow"), a.single("viscosity")));
    }};
    calls["FrictionFactor"] = {{"reynolds", "relativeRoughness", "kind", "aspectRatio", "diameterRatio"}, [](const RequestArgs& a, JsonObject& r) {
        r.single("value", FrictionFactor(a.single("reynolds"), a.single("relativeRoughness"), a.integer16("kind"),
                                         a.single("aspectRatio"), a.single("diameterRatio")));
    }};
    calls["FlowVelocity"] = {{"massFlow", "density", "diameter"}, [](const RequestArgs& a, JsonObject& r) {
        r.single("value", FlowVelocity(a.single("massFlow"), a.single("density"), a.single("diameter")));
    }};
    calls["StraightRunDrop"] = {{"frictionFactor", "length", "diameter", "velocity"}, [](const RequestArgs& a, JsonObject& r) {
        r.single("value", StraightRunDrop(a.single("frictionFactor"), a.single("length"), a.single("diameter"),
                                          a.single("velocity")));
    }};
    calls["MinorLossDrop"] = {{"resistanceCoefficient", "velocity"}, [](const RequestArgs& a, JsonObject& r) {
        r.single("value", MinorLossDrop(a.single("resistanceCoefficient"), a.single("velocity")));
    }};
}

GasLineInlet gasLineInlet(const RequestArgs& a)
{
    return {a.single("massFlow"),          a.single("flowArea"),        a.single("temperature"),
            a.single("pressure"),          a.single("compressibility"), a.single("molecularWeight"),
            a.single("heatCapacityRatio"), a.single("pipeResistance"),  a.single("fittingResistance")};
}

void writeGasOutlet(const GasLineOutlet& out, const ScriptedUserInterface& user, bool withTemperature, JsonObject& r)
{
    r.single("sonicVelocity", out.sonicVelocity).single("outletPressure", out.outletPressure);
    if (withTemperature)
        r.single("outletTemperature", out.outletTemperature);
    r.single("inletMach", out.inletMach)
        .single("outletMach", out.outletMach)
        .text("flowType", out.flowType)
        .raw("messages", messagesJson(user))
        .integer("beeps", user.beeps);
}

void addGasFlowCalls(Calls& calls)
{
    calls["AdiabaticGasFlow"] = {{"massFlow", "flowArea", "temperature", "pressure", "compressibility", "molecularWeight", "heatCapacityRatio", "pipeResistance", "fittingResistance"}, [](const RequestArgs& a, JsonObject& r) {
        GasLineOutlet out;
        ScriptedUserInterface user;
        AdiabaticGasFlow(gasLineInlet(a), out, user);
        writeGasOutlet(out, user, true, r);
    }};
    calls["IsothermalGasFlow"] = {{"massFlow", "flowArea", "temperature", "pressure", "compressibility", "molecularWeight", "heatCapacityRatio", "pipeResistance", "fittingResistance"}, [](const RequestArgs& a, JsonObject& r) {
        GasLineOutlet out;
        ScriptedUserInterface user;
        IsothermalGasFlow(gasLineInlet(a), out, user);
        writeGasOutlet(out, user, false, r);
    }};
}

void addTwoPhaseCalls(Calls& calls)
{
    calls["TwoPhaseDrop"] = {{"orientation", "diameter", "roughness", "gasFlow", "liquidFlow", "gasDensity", "liquidDensity", "gasViscosity", "liquidViscosity", "surfaceTension", "length"}, [](const RequestArgs& a, JsonObject& r) {
        const TwoPhaseLine line{a.text("orientation"),    a.single("diameter"),       a.single("roughness"),
                                a.single("gasFlow"),      a.single("liquidFlow"),     a.single("gasDensity"),
                                a.single("liquidDensity"), a.single("gasViscosity"),  a.single("liquidViscosity"),
                                a.single("surfaceTension"), a.single("length")};
        TwoPhaseResult out;
        TwoPhaseDrop(line, out);
        r.single("liquidReynolds", out.liquidReynolds)
            .single("gasReynolds", out.gasReynolds)
            .single("homogeneousDensity", out.homogeneousDensity)
            .single("homogeneousViscosity", out.homogeneousViscosity)
            .single("liquidFriction", out.liquidFriction)
            .single("gasFriction", out.gasFriction)
            .text("correlation", out.correlation)
            .text("regime", out.regime);
        if (out.pressureDrop)
            r.single("pressureDrop", *out.pressureDrop);
        else
            r.null("pressureDrop");
        r.text("mapCoordinates", out.mapCoordinates);
    }};
    calls["FlowRegimeMap"] = {{"orientation", "liquidFlux", "gasFlux", "liquidDensity", "gasDensity", "liquidViscosity", "surfaceTension"}, [](const RequestArgs& a, JsonObject& r) {
        Single liquidFlux = a.single("liquidFlux");
        Single gasFlux = a.single("gasFlux");
        const RegimeMapReading reading =
            FlowRegimeMap(a.text("orientation"), liquidFlux, gasFlux, a.single("liquidDensity"),
                          a.single("gasDensity"), a.single("liquidViscosity"), a.single("surfaceTension"));
        r.text("regime", reading.regime).text("mapCoordinates", reading.mapCoordinates);
    }};
}

void addOrificeCalls(Calls& calls)
{
    calls["OrificeDischargeCoefficient"] = {{"D", "beta", "Re", "tap"}, [](const RequestArgs& a, JsonObject& r) {
        std::string message = a.textOr("message", "");
        const Single C = OrificeDischargeCoefficient(a.single("D"), a.single("beta"), a.single("Re"),
                                                     a.integer16("tap"), message);
        r.single("value", C).text("message", message);
    }};
    calls["OrificeThermalFactor"] = {{"beta", "alphaElement", "alphaPipe", "temperature", "referenceTemperature"}, [](const RequestArgs& a, JsonObject& r) {
        r.single("value", OrificeThermalFactor(a.single("beta"), a.single("alphaElement"), a.single("alphaPipe"),
                                               a.single("temperature"), a.single("referenceTemperature")));
    }};
    calls["OrificeDrainHoleFactor"] = {{"beta", "holeDiameter", "D"}, [](const RequestArgs& a, JsonObject& r) {
        r.single("value", OrificeDrainHoleFactor(a.single("beta"), a.single("holeDiameter"), a.single("D")));
    }};
}

void addPropertyCalls(Calls& calls)
{
    calls["PropertyCorrelation"] = {{"T", "Tc", "coefficients", "equation"}, [](const RequestArgs& a, JsonObject& r) {
        r.real("value", PropertyCorrelation(a.real("T"), a.real("Tc"), a.reals<5>("coefficients"),
                                            a.integer16("equation")));
    }};
}

void addConversionCalls(Calls& calls)
{
    using Conversion = double (*)(double, UnitIndex);
    static const std::pair<const char*, Conversion> conversions[] = {
        {"TemperatureToUnit", TemperatureToUnit},       {"TemperatureFromUnit", TemperatureFromUnit},
        {"PressureToUnit", PressureToUnit},             {"PressureFromUnit", PressureFromUnit},
        {"PascalToUnit", PascalToUnit},                 {"DensityToUnit", DensityToUnit},
        {"DensityFromUnit", DensityFromUnit},           {"ViscosityToUnit", ViscosityToUnit},
        {"ViscosityFromUnit", ViscosityFromUnit},       {"SurfaceTensionToUnit", SurfaceTensionToUnit},
        {"SurfaceTensionFromUnit", SurfaceTensionFromUnit}, {"RoughnessToUnit", RoughnessToUnit},
        {"RoughnessFromUnit", RoughnessFromUnit},       {"FlowToUnit", FlowToUnit},
        {"FlowFromUnit", FlowFromUnit},                 {"VelocityToUnit", VelocityToUnit},
        {"VelocityFromUnit", VelocityFromUnit},         {"LengthToUnit", LengthToUnit},
        {"LengthFromUnit", LengthFromUnit},             {"DiameterToUnit", DiameterToUnit},
        {"DiameterFromUnit", DiameterFromUnit},         {"HeatCapacityToUnit", HeatCapacityToUnit},
        {"HeatCapacityFromUnit", HeatCapacityFromUnit}, {"ExpansionToUnit", ExpansionToUnit},
        {"ExpansionFromUnit", ExpansionFromUnit},       {"PowerToUnit", PowerToUnit},
        {"HeadToUnit", HeadToUnit},
    };
    for (const auto& [name, convert] : conversions) {
        calls[name] = {{"value", "index"}, [convert = convert](const RequestArgs& a, JsonObject& r) {
            r.real("value", convert(a.real("value"), a.integer16("index")));
        }};
    }
    calls["DensityProductToUnit"] = {{"value", "b", "index"}, [](const RequestArgs& a, JsonObject& r) {
        r.real("value", DensityProductToUnit(a.real("value"), a.real("b"), a.integer16("index")));
    }};
}

void addFieldCalls(Calls& calls)
{
    calls["Format"] = {{"value", "mask"}, [](const RequestArgs& a, JsonObject& r) {
        r.text("text", formatMask(a.real("value"), a.text("mask")));
    }};
    calls["ParseNumber"] = {{"text"}, [](const RequestArgs& a, JsonObject& r) {
        r.real("value", parseFieldNumber(a.text("text")));
    }};
}

} // namespace

const std::map<std::string, CallSpec, std::less<>>& functionCalls()
{
    static const Calls calls = [] {
        Calls all;
        addFrictionCalls(all);
        addGasFlowCalls(all);
        addTwoPhaseCalls(all);
        addOrificeCalls(all);
        addPropertyCalls(all);
        addConversionCalls(all);
        addFieldCalls(all);
        addToolCalls(all);
        return all;
    }();
    return calls;
}

} // namespace kestrova::calc
