#pragma once
// The orifice plate calculation: one of three unknowns (flow, differential
// pressure, orifice diameter) for a liquid or a gas, solved on the tool's
// record in place, and every result of the tab written as it goes.

#include "numeric/single.h"
#include "tools/orifice/calc/basOrificeFunctions.h"

#include <array>
#include <string>

namespace kestrova {

// The tool's record, 19 singles in this order, in internal units: lb/h,
// inches for diameters, lb/ft3, kg/(m s), ft/s, °F, 1/°F, psi.
struct OrificeData {
    Single liquidFlow, gasFlow, pipeID, orificeDiameter, holeDiameter, liquidDensity, gasDensity, gasViscosity,
        liquidViscosity, velocityPipe, velocityOrifice, referenceTemperature, elementExpansion, pipeExpansion,
        differentialPressure, permanentLoss, temperature, inletPressure, heatCapacityRatio;

    static constexpr int kFieldCount = 19;
    // The fields and their names, in record order.
    std::array<Single*, kFieldCount> fields();
    static const std::array<const char*, kFieldCount>& names();
};

enum class OrificeFluid { Liquid = 0, Gas = 1 };                                    // the tab
enum class OrificeUnknown { Flow = 0, DifferentialPressure = 1, OrificeDiameter = 2 }; // the Compute option

// What the calculation shows as it goes: the plain result fields
// `txtDisplay(i)`, the field refresh of `txtData(i)` through its unit list,
// and the two message boxes.
class OrificeDisplay {
public:
    virtual ~OrificeDisplay() = default;
    virtual void showDisplay(int /*index*/, const std::string& /*text*/) {}
    virtual void refresh(int /*field*/) {}
    virtual void showErrorLiquid(const std::string& /*text*/) {}
    virtual void showErrorGas(const std::string& /*text*/) {}
};

// The gas expansion factor, linear in the differential pressure (ΔP and P1
// in one unit).
Single GasExpansionFactor(Single beta, Single differentialPressure, Single heatCapacityRatio, Single inletPressure);

// One run. A numeric fault anywhere stops the run: the two message boxes get
// the warning texts the run had reached, and the fields not yet written keep
// their old values.
void ComputeOrifice(OrificeData& record, OrificeFluid fluid, OrificeUnknown unknown, TapStyle tap,
                    OrificeDisplay& display);

} // namespace kestrova
