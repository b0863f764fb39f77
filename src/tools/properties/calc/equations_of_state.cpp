#include "tools/properties/calc/equations_of_state.h"

#include "numeric/checked_math.h"
#include "numeric/numeric_fault.h"

#include <cmath>

namespace kestrova {

using checked::Div;
using checked::Exp;
using checked::Pow;
using checked::Sqr;

namespace {

struct Cubic {
    Single c2, c1, c0;
};

// Newton's method on Z^3 + c2 Z^2 + c1 Z + c0 from a start, at most 51 passes.
Single newtonRoot(const Cubic& c, Single z)
{
    for (int pass = 0; pass < 51; ++pass) {
        const Single f = Pow(z, 3) + c.c2 * Pow(z, 2) + c.c1 * z + c.c0;
        const Single step = Div(f, 3 * Pow(z, 2) + 2 * c.c2 * z + c.c1);
        const Single relative = std::fabs(Div(step, z));
        if (relative <= single(0.0001))
            break;
        z = z - step;
    }
    return z;
}

Cubic equationOfState(Single Tr, Single Pr, double omega, int eos, bool hydrogen)
{
    if (eos == 0) {
        const Single A = Div(0.42748 * Pr, Pow(Tr, 2.5));
        const Single B = Div(0.08664 * Pr, Tr);
        return {-1.0, A - B - Pow(B, 2), -A * B};
    }
    if (eos == 1) {
        Single alpha;
        if (hydrogen) {
            alpha = 1.202 * Exp(-0.30288 * Tr);
        } else {
            const Single m = 0.48 + 1.57 * omega - 0.176 * Pow(omega, 2);
            alpha = Pow(1 + m * (1 - Sqr(Tr)), 2);
        }
        const Single A = Div(alpha * 0.42748 * Pr, Pow(Tr, 2));
        const Single B = Div(0.08664 * Pr, Tr);
        return {-1.0, A - B - Pow(B, 2), -A * B};
    }
    const Single m = 0.37464 + 1.54226 * omega - 0.26992 * Pow(omega, 2);
    const Single alpha = Pow(1 + m * (1 - Sqr(Tr)), 2);
    const Single A = Div(alpha * 0.45724 * Pr, Pow(Tr, 2));
    const Single B = Div(0.0778 * Pr, Tr);
    return {B - 1, A - 3 * Pow(B, 2) - 2 * B, Pow(B, 3) + Pow(B, 2) - A * B};
}

} // namespace

Single computeCompressibility(Single temperature, Single pressure, Single criticalTemperature,
                              Single criticalPressure, double acentricFactor, int eos, bool hydrogen)
{
    FaultScope scope("ComputeZ");
    const Single Tr = Div(temperature + 459.67, criticalTemperature + 459.67);
    const Single Pr = Div(pressure, criticalPressure);
    const Cubic c = equationOfState(Tr, Pr, acentricFactor, eos, hydrogen);
    const Single gasRoot = newtonRoot(c, 1.0);
    // The liquid root and the third root are found as well; only a failure there matters.
    const Single liquidRoot = newtonRoot(c, single(0.001));
    const Single third = -c.c2 - gasRoot - liquidRoot;
    (void)third;
    return gasRoot;
}

} // namespace kestrova
