#pragma once
// The operations of an expression that can fail, each checked where it runs:
// a zero divisor, a logarithm of a non-positive number, a root of a negative
// one, a negative base under a fractional power, and any result that leaves
// the double range. A failing step raises a NumericFault at once.

namespace kestrova::checked {

double Div(double numerator, double denominator);
double Pow(double base, double exponent); // the general power operation
double Log(double x);                     // natural logarithm
double Sqr(double x);                     // square root
double Exp(double x);
// A double result that leaves the function: infinity or NaN is a fault.
double Finite(double x);

} // namespace kestrova::checked
