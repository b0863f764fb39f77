#pragma once
// Run-time numeric faults: the one error that a calculation raises when an
// arithmetic step divides by zero, overflows or is invalid. Each tool decides
// what a fault means for it (abandon the run, or skip one statement).

#include <stdexcept>
#include <string>

namespace kestrova {

enum class FaultKind { DivisionByZero, InvalidOperation, Overflow };

class NumericFault : public std::runtime_error {
public:
    NumericFault(FaultKind kind, const std::string& operation);

    FaultKind kind() const { return kind_; }
    // The routine and step in which the fault arose, e.g. "FrictionFactor: division by zero".
    const std::string& where() const { return where_; }

private:
    FaultKind kind_;
    std::string where_;
};

// Names the routine that runs while it lives, so that a fault raised deep in an
// expression says where it happened. Scopes nest; the innermost one names the fault.
namespace detail {
inline constinit thread_local const char* currentRoutine = nullptr;
}

class FaultScope {
public:
    explicit FaultScope(const char* routine) : previous_(detail::currentRoutine) { detail::currentRoutine = routine; }
    ~FaultScope() { detail::currentRoutine = previous_; }
    FaultScope(const FaultScope&) = delete;
    FaultScope& operator=(const FaultScope&) = delete;

    static const char* current() { return detail::currentRoutine; }

private:
    const char* previous_;
};

[[noreturn]] void raiseFault(FaultKind kind, const char* operation);

} // namespace kestrova
