#pragma once
// The controls of the pump network window by name, in the program's own
// numbering: txtData(15) is the flow of line 3 and stays 15.

#include "forms/model/controls.h"

#include <array>

namespace kestrova::pump_network {

// txtData(i), each with its unit list cboUnits(i). The destinations come in
// the order of lines 5, 6, 8, 10, 11, 3: flow, pressure, height of each.
enum Field : int {
    Line5Flow = 0, Line5Pressure = 1, Line5Height = 2,
    Line6Flow = 3, Line6Pressure = 4, Line6Height = 5,
    Line8Flow = 6, Line8Pressure = 7, Line8Height = 8,
    Line10Flow = 9, Line10Pressure = 10, Line10Height = 11,
    Line11Flow = 12, Line11Pressure = 13, Line11Height = 14,
    Line3Flow = 15, Line3Pressure = 16, Line3Height = 17,
    SourceHeight = 18,
    Valve5Drop = 19, Valve6Drop = 20, Valve8Drop = 21, Valve10Drop = 22, Valve11Drop = 23, Valve3Drop = 24,
    VaporPressure = 25, PumpFlow = 26, PumpHead = 27, PressureIncrease = 28, NPSHa = 29, MotorSize = 30,
    DischargePressure = 31, SuctionPressure = 32, MinimumValveDrop = 33,
};
inline constexpr int kFields = 34;
inline constexpr int kUnitLists = 45; // 34 to 44 serve the rows of the summary grid

// The terminal lines in the order of the destination fields and of the valve fields.
inline constexpr std::array<int, 6> kTerminals{5, 6, 8, 10, 11, 3};

// The rows of grdSummary; row 0 is the header.
enum GridRow : int {
    FlowRow = 1, DiameterRow = 2, LengthRow = 3, K1Row = 4, K2Row = 5, K3Row = 6, RoughnessRow = 7,
    ViscosityRow = 8, DensityRow = 9, VelocityRow = 10, ReynoldsRow = 11, FrictionRow = 12, AddedDropRow = 13,
    LineDropRow = 14, ValveDropRow = 15, DestinationRow = 16,
};
inline constexpr int kGridRows = 17, kGridColumns = 13; // line i stands in column i + 1

inline Control txtData(int i) { return {"txtData", i}; }
inline Control cboUnits(int i) { return {"cboUnits", i}; }
inline const Control txtHydraulicEff{"txtHydraulicEff"};
inline const Control txtMinValvePercentdP{"txtMinValvePercentdP"};
inline const Control txtDescription{"txtDescription"};
inline const Control grdSummary{"grdSummary"};
inline const Control panNetwork{"panNetwork"};
inline const Control cmdReset{"cmdReset"};
inline const Control cmdSizeGrid{"cmdSizeGrid"};

} // namespace kestrova::pump_network
