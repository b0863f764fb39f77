#pragma once
// The controls of the pressure drop window by name, in the program's own
// numbering: txtData(5) is the liquid tab's pipe diameter and stays 5.

#include "forms/model/controls.h"

#include <array>

namespace kestrova::pressure_drop {

// txtData(i), each with its unit list cboUnits(i).
enum Field : int {
    LiquidFlow = 0, LiquidDensity = 1, LiquidViscosity = 2, LiquidConduitWidth = 3, LiquidConduitHeight = 4,
    LiquidDiameter = 5, LiquidRoughness = 6, ElevationChange = 7, LiquidLength = 8, LiquidVelocity = 9,
    LiquidPressureDrop = 10,
    GasFlow = 11, InletPressure = 12, InletTemperature = 13, GasViscosity = 14, GasDiameter = 15, GasRoughness = 16,
    GasLength = 17, InletVelocity = 18, ExitVelocity = 19, InletDensity = 20, ExitDensity = 21, SonicVelocity = 22,
    ExitTemperature = 23, GasPressureDrop = 24, ExitPressure = 25,
    TwoPhaseLiquidViscosity = 26, TwoPhaseLiquidDensity = 27, TwoPhaseLiquidFlow = 28, SurfaceTension = 29,
    TwoPhaseVaporFlow = 30, TwoPhaseVaporDensity = 31, TwoPhaseVaporViscosity = 32, TwoPhaseLength = 33,
    TwoPhaseRoughness = 34, TwoPhaseDiameter = 35, TwoPhaseLiquidVelocity = 36, TwoPhaseVaporVelocity = 37,
    AverageDensity = 38, AverageViscosity = 39, AverageVelocity = 40, TwoPhasePressureDrop = 41,
    GasConduitHeight = 42, GasConduitWidth = 43, LiquidTemperature = 44, TwoPhaseTemperature = 45,
};
inline constexpr int kFields = 46;

// txtDisplay(i): plain texts without units.
enum Display : int {
    LiquidK1 = 0, LiquidReynolds = 1, LiquidRegime = 2, LiquidFriction = 3, MolecularWeight = 4,
    Compressibility = 5, HeatCapacityRatio = 6, GasK1 = 7, GasReynolds = 8, GasFriction = 9, InletMach = 10,
    OutletMach = 11, LiquidK2 = 12, TwoPhaseVaporReynolds = 13, TwoPhaseLiquidRegime = 14, TwoPhaseVaporRegime = 15,
    TwoPhaseLiquidReynolds = 16, TwoPhaseRegime = 17, LiquidK3 = 18, GasK2 = 19, GasK3 = 20,
};
inline constexpr int kDisplays = 21;

// The K1, K2, K3 fields of the liquid and gas tabs.
inline constexpr std::array<int, 3> kLiquidKFields{LiquidK1, LiquidK2, LiquidK3};
inline constexpr std::array<int, 3> kGasKFields{GasK1, GasK2, GasK3};

// cmdTable(i): the data buttons beside the fields.
enum Table : int {
    LiquidPipeTable = 0, LiquidRoughnessTable = 1, LiquidMinorLossTable = 2, LiquidOuterTable = 3,
    LiquidInnerTable = 4, CompressibilityTool = 5, GasPipeTable = 6, GasRoughnessTable = 7, GasMinorLossTable = 8,
    HeatCapacityRatioTool = 9, GasInnerTable = 10, TwoPhaseRoughnessTable = 11, TwoPhasePipeTable = 12,
    RegimeMap = 13, GasOuterTable = 14, LiquidFlowConversion = 15, GasFlowConversion = 16,
    TwoPhaseLiquidFlowConversion = 17, TwoPhaseVaporFlowConversion = 18, GasDensityTool = 19,
};
inline constexpr int kTables = 20;

// The caption of cmdTable(RegimeMap): the map can be opened, or there is none for downflow.
inline constexpr const char* kArrowCaption = "\u279C";
inline constexpr const char* kCrossCaption = "\u2716";

enum Tab : int { LiquidTab = 0, GasTab = 1, TwoPhaseTab = 2 };

// The results frames Frame1(2), (5), (8) and the fluid frames (0), (3), (6).
enum Frame : int { LiquidFluidFrame = 0, LiquidResultsFrame = 2, GasFluidFrame = 3, GasResultsFrame = 5,
                   TwoPhaseResultsFrame = 8 };

// The controls by family.
inline Control txtData(int i) { return {"txtData", i}; }
inline Control cboUnits(int i) { return {"cboUnits", i}; }
inline Control txtDisplay(int i) { return {"txtDisplay", i}; }
inline Control cmdTable(int i) { return {"cmdTable", i}; }
inline Control cmdProperties(int i) { return {"cmdProperties", i}; }
inline Control cmdReset(int tab) { return {"cmdReset", tab}; }
inline Control cmdHelp(int tab) { return {"cmdHelp", tab}; } // "Help with Equations" of the tab
inline Control txtProject(int tab) { return {"txtProject", tab}; }
inline Control txtTag(int tab) { return {"txtTag", tab}; }
inline Control Label1(int i) { return {"Label1", i}; }
inline Control Frame1(int i) { return {"Frame1", i}; }
inline Control optCrossSection(int i) { return {"optCrossSection", i}; }
inline Control optCalcType(int i) { return {"optCalcType", i}; }
inline Control optOrientation(int i) { return {"optOrientation", i}; }
inline const Control txtLiquid{"txtLiquid"};
inline const Control txtGas{"txtGas"};
inline const Control lblTwoPhaseFluids{"lblTwoPhaseFluids"};
inline const Control SSTab1{"SSTab1"};

} // namespace kestrova::pressure_drop
