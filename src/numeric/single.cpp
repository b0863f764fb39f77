#include "numeric/single.h"

#include "numeric/numeric_fault.h"

#include <cmath>

namespace kestrova {

void detail::raiseNotStorable(double value)
{
    raiseFault(std::isnan(value) ? FaultKind::InvalidOperation : FaultKind::Overflow, "a stored value");
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
