#include "numeric/checked_math.h"
#include "numeric/numeric_fault.h"
#include "numeric/single.h"

#include <gtest/gtest.h>

#include <cfloat>
#include <cmath>
#include <limits>

using namespace kestrova;

TEST(Single, StoringRoundsToTheNearestSingleAndArithmeticRunsInDouble)
{
    const Single a = 0.1;
    EXPECT_EQ(static_cast<double>(a), static_cast<double>(0.1f));
    // float * float would round the product to single; Single computes in double.
    const Single b = 16777217.0; // 2^24 + 1 is not a single: it rounds to 2^24
    EXPECT_EQ(static_cast<double>(b), 16777216.0);
    const double product = a * a;
    EXPECT_EQ(product, static_cast<double>(0.1f) * static_cast<double>(0.1f));
    EXPECT_NE(product, static_cast<double>(0.1f * 0.1f));
    EXPECT_EQ(single(0.47), static_cast<double>(0.47f));
}

TEST(Single, ValuesBeyondTheSingleRangeOrNaNFault)
{
    EXPECT_NO_THROW(Single(static_cast<double>(FLT_MAX)));
    EXPECT_NO_THROW(Single(-static_cast<double>(FLT_MAX)));
    EXPECT_NO_THROW(Single(1e-50)); // underflow to zero is no fault
    EXPECT_EQ(static_cast<double>(Single(1e-50)), 0.0);
    try {
        Single s = 1e39;
        (void)s;
        FAIL() << "1e39 was stored as a single";
    } catch (const NumericFault& fault) {
        EXPECT_EQ(fault.kind(), FaultKind::Overflow);
    }
    try {
        Single s = std::numeric_limits<double>::quiet_NaN();
        (void)s;
        FAIL() << "NaN was stored as a single";
    } catch (const NumericFault& fault) {
        EXPECT_EQ(fault.kind(), FaultKind::InvalidOperation);
    }
    EXPECT_THROW(Single(std::numeric_limits<double>::infinity()), NumericFault);
}

TEST(Single, IntegerArgumentsRoundHalfToEvenWithinSixteenBits)
{
    EXPECT_EQ(roundToInteger16(2.5), 2);
    EXPECT_EQ(roundToInteger16(3.5), 4);
    EXPECT_EQ(roundToInteger16(-1.5), -2);
    EXPECT_EQ(roundToInteger16(1.4999), 1);
    EXPECT_EQ(roundToInteger16(32767), 32767);
    EXPECT_EQ(roundToInteger16(-32768), -32768);
    EXPECT_THROW(roundToInteger16(32767.5), NumericFault); // rounds to 32768
    EXPECT_THROW(roundToInteger16(-40000), NumericFault);
    EXPECT_THROW(roundToInteger16(std::nan("")), NumericFault);
}

TEST(CheckedMath, EachFailingOperationFaultsWithItsKind)
{
    using namespace kestrova::checked;
    const auto kindOf = [](auto&& operation) {
        try {
            operation();
        } catch (const NumericFault& fault) {
            return fault.kind();
        }
        ADD_FAILURE() << "no fault raised";
        return FaultKind::Overflow;
    };
    EXPECT_EQ(kindOf([] { Div(1, 0); }), FaultKind::DivisionByZero);
    EXPECT_EQ(kindOf([] { Div(0, 0); }), FaultKind::DivisionByZero);
    EXPECT_EQ(kindOf([] { Log(0); }), FaultKind::InvalidOperation);
    EXPECT_EQ(kindOf([] { Log(-1); }), FaultKind::InvalidOperation);
    EXPECT_EQ(kindOf([] { Sqr(-1e-300); }), FaultKind::InvalidOperation);
    EXPECT_EQ(kindOf([] { Pow(-8, 1.0 / 3.0); }), FaultKind::InvalidOperation);
    EXPECT_EQ(kindOf([] { Pow(0, -0.5); }), FaultKind::DivisionByZero);
    EXPECT_EQ(kindOf([] { Pow(10, 400); }), FaultKind::Overflow);
    EXPECT_EQ(kindOf([] { Exp(710); }), FaultKind::Overflow);
    EXPECT_EQ(kindOf([] { Div(1e308, 1e-10); }), FaultKind::Overflow);

    EXPECT_EQ(Pow(-2, 3), -8);  // a negative base under a whole exponent is fine
    EXPECT_EQ(Pow(0, 0.5), 0);
    EXPECT_EQ(Sqr(0), 0);
}

TEST(FaultScope, TheInnermostRoutineNamesTheFault)
{
    try {
        FaultScope outer("TwoPhaseDrop");
        {
            FaultScope inner("FrictionFactor");
        }
        checked::Div(1, 0);
        FAIL() << "a division by zero must raise a fault";
    } catch (const NumericFault& fault) {
        EXPECT_EQ(fault.where(), "TwoPhaseDrop: division by zero in a division");
    }
    try {
        FaultScope outer("TwoPhaseDrop");
        FaultScope inner("FrictionFactor");
        checked::Log(0);
        FAIL() << "the logarithm of zero must raise a fault";
    } catch (const NumericFault& fault) {
        EXPECT_EQ(fault.where().rfind("FrictionFactor: invalid operation", 0), 0u) << fault.where();
    }
    EXPECT_EQ(FaultScope::current(), nullptr);
}
