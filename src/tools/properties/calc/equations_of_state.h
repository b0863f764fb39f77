#pragma once
// The three cubic equations of state of the compressibility tool, solved for
// the gas root by Newton's method.

#include "numeric/single.h"

namespace kestrova {

// The compressibility factor found by Newton's method from Z = 1, or a fault.
// eos: 0 Redlich-Kwong, 1 Soave-Redlich-Kwong, 2 Peng-Robinson.
Single computeCompressibility(Single temperature, Single pressure, Single criticalTemperature,
                              Single criticalPressure, double acentricFactor, int eos, bool hydrogen);

} // namespace kestrova
