#pragma once
// The controls of the orifice plates window by name, in the program's own
// numbering: txtData(0) to (13) on the liquid tab, (14) to (28) on the gas
// tab, which has the inlet pressure before its density.

#include "forms/model/controls.h"

#include <array>

namespace kestrova::orifice {

// txtData(i), each with its unit list cboUnits(i).
enum Field : int {
    LiquidFlow = 0, LiquidDifferentialPressure = 1, LiquidOrificeDiameter = 2, LiquidTemperature = 3,
    LiquidDensity = 4, LiquidViscosity = 5, LiquidReferenceTemperature = 6, VentHole = 7,
    LiquidElementExpansion = 8, LiquidPipeID = 9, LiquidPipeExpansion = 10, LiquidPipeVelocity = 11,
    LiquidOrificeVelocity = 12, LiquidPermanentLoss = 13,
    GasFlow = 14, GasDifferentialPressure = 15, GasOrificeDiameter = 16, GasTemperature = 17, InletPressure = 18,
    GasDensity = 19, GasViscosity = 20, GasReferenceTemperature = 21, DrainHole = 22, GasElementExpansion = 23,
    GasPipeID = 24, GasPipeExpansion = 25, GasPipeVelocity = 26, GasOrificeVelocity = 27, GasPermanentLoss = 28,
};
inline constexpr int kFields = 29;

// txtDisplay(i): the plain results, and k on the gas tab.
enum Display : int {
    LiquidBeta = 0, LiquidDischarge = 1, LiquidPipeReynolds = 2, LiquidOrificeReynolds = 3, LiquidMinorLoss = 4,
    HeatCapacityRatio = 5, GasBeta = 6, GasDischarge = 7, GasPipeReynolds = 8, GasOrificeReynolds = 9,
    ExpansionFactor = 10, PressureRatio = 11, GasMinorLoss = 12,
};
inline constexpr int kDisplays = 13;

enum Tab : int { LiquidTab = 0, GasTab = 1 };

// cmdTable(i): the pipe sizes of each tab, the heat capacity ratio, the gas density.
enum Table : int { LiquidPipeTable = 0, GasPipeTable = 1, HeatCapacityRatioTool = 2, GasDensityTool = 3 };

// The first field of a tab; the quantities that Compute can solve for are
// its first three (flow, differential pressure, orifice diameter).
inline constexpr std::array<int, 2> kFirstField{LiquidFlow, GasFlow};
// The coefficient fields of the materials, per tab.
inline constexpr std::array<int, 2> kElementExpansionField{LiquidElementExpansion, GasElementExpansion};
inline constexpr std::array<int, 2> kPipeExpansionField{LiquidPipeExpansion, GasPipeExpansion};

// The frames whose caption changes: the properties of each tab.
inline constexpr std::array<int, 2> kPropertiesFrame{0, 10};

inline Control txtData(int i) { return {"txtData", i}; }
inline Control cboUnits(int i) { return {"cboUnits", i}; }
inline Control txtDisplay(int i) { return {"txtDisplay", i}; }
inline Control optCompute(int i) { return {"optCompute", i}; }   // 0 to 2 liquid tab, 3 to 5 gas tab
inline Control optMeterTap(int i) { return {"optMeterTap", i}; } // likewise
inline Control cboElementMaterial(int tab) { return {"cboElementMaterial", tab}; }
inline Control cboPipeMaterial(int tab) { return {"cboPipeMaterial", tab}; }
inline Control cmdTable(int i) { return {"cmdTable", i}; }
inline Control cmdProperties(int tab) { return {"cmdProperties", tab}; }
inline Control cmdReset(int tab) { return {"cmdReset", tab}; }
inline Control cmdHelp(int tab) { return {"cmdHelp", tab}; } // "Help with Equations" of the tab
inline Control txtProject(int tab) { return {"txtProject", tab}; }
inline Control txtTag(int tab) { return {"txtTag", tab}; }
inline Control Frame1(int i) { return {"Frame1", i}; }
inline const Control txtErrorLiquid{"txtErrorLiquid"};
inline const Control txtErrorGas{"txtErrorGas"};
inline const Control SSTab1{"SSTab1"};

} // namespace kestrova::orifice
