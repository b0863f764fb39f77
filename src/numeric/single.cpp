#include "numeric/single.h"

#include "numeric/numeric_fault.h"

#include <cfloat>
#include <cmath>

namespace kestrova {

float roundToSingle(double value)
{
    if (std::isnan(value))
        raiseFault(FaultKind::InvalidOperation, "a stored value");
    // Half an ulp above FLT_MAX is where rounding to single reaches infinity.
    constexpr double kLimit = static_cast<double>(FLT_MAX) + 0x1p103;
    if (!(std::fabs(value) < kLimit))
        raiseFault(FaultKind::Overflow, "a stored value");
    return static_cast<float>(value);
}

std::int16_t roundToInteger16(double value)
{
    if (std::isnan(value))
        raiseFault(FaultKind::InvalidOperation, "an integer value");
    const double rounded = std::nearbyint(value); // default rounding mode: halves to even
    if (rounded < -32768.0 || rounded > 32767.0)
        raiseFault(FaultKind::Overflow, "an integer value");
    return static_cast<std::int16_t>(rounded);
}

} // namespace kestrova
