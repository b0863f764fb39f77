#include "numeric/numeric_fault.h"

namespace kestrova {

namespace {

const char* kindText(FaultKind kind)
{
    switch (kind) {
    case FaultKind::DivisionByZero: return "division by zero";
    case FaultKind::InvalidOperation: return "invalid operation";
    case FaultKind::Overflow: return "overflow";
    }
    return "numeric fault";
}

std::string describe(FaultKind kind, const std::string& operation)
{
    std::string text;
    if (const char* routine = FaultScope::current()) {
        text = routine;
        text += ": ";
    }
    text += kindText(kind);
    if (!operation.empty()) {
        text += " in ";
        text += operation;
    }
    return text;
}
} // namespace

NumericFault::NumericFault(FaultKind kind, const std::string& operation)
    : std::runtime_error(describe(kind, operation)), kind_(kind), where_(what())
{
}

void raiseFault(FaultKind kind, const char* operation)
{
    throw NumericFault(kind, operation);
}

} // namespace kestrova
