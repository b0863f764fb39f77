#pragma once
// The context numbers of the forms' help topics, and the topic page of each.
// A form asks for its topic by number; the help system shows the page. The
// pressure drop tool's numbers are the program's own; the others were given
// here, one block of ten per tool.

#include <string>
#include <vector>

namespace kestrova::help {

enum Context : int {
    Contents = 1000,
    PressureDropLiquid = 1190,
    PressureDropGas = 1200,
    PressureDropTwoPhase = 1210,
    PumpNetwork = 1300,
    PumpSegmentInput = 1310,
    OrificeLiquid = 1400,
    OrificeGas = 1410,
    FlowConversions = 1500,
    GasDensity = 1510,
    PipeSizes = 1600,
    Roughness = 1610,
    MinorLosses = 1620,
    Contractions = 1630,
    Enlargements = 1640,
    PhysicalProperties = 1700,
    Compressibility = 1710,
    HeatCapacityRatio = 1720,
    RegimeMapHorizontal = 1800,
    RegimeMapVertical = 1810,
    UnitsOfMeasure = 1900,
    CompanyInformation = 1910,
};

struct Topic {
    int context;
    const char* page; // the page in the help file, with its anchor where a page serves two forms
};

// Every context number with its page, in ascending order.
const std::vector<Topic>& topics();

// The page of a context number; the contents page for 0 or a number without a topic.
std::string pageOf(int context);

} // namespace kestrova::help
