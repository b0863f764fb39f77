#include "numeric/display_mask.h"
#include "numeric/numeric_fault.h"

#include <gtest/gtest.h>

#include <limits>

using kestrova::formatMask;

struct MaskCase {
    double value;
    const char* mask;
    const char* text;
};

class DisplayMask : public testing::TestWithParam<MaskCase> {};

TEST_P(DisplayMask, FormatsAsTheMaskSays)
{
    const MaskCase& c = GetParam();
    EXPECT_EQ(formatMask(c.value, c.mask), c.text) << c.value << " with " << c.mask;
}

INSTANTIATE_TEST_SUITE_P(FixedPoint, DisplayMask, testing::Values(
    MaskCase{100, "##,##0.00", "100.00"},
    MaskCase{0, "##,##0.00", "0.00"},
    MaskCase{1234567.125, "##,##0.00", "1,234,567.13"},
    MaskCase{100.0 / 3600, "##,##0.0000", "0.0278"},   // 100 lbm/hr in lbm/s
    MaskCase{-1234.5, "##,##0.0", "-1,234.5"},
    MaskCase{-0.001, "##,##0.00", "0.00"},               // no negative zero
    MaskCase{999.995, "##,##0.00", "1,000.00"},          // a carry through the grouping
    MaskCase{2.675, "##,##0.00", "2.68"},                // half away from zero on 15 digits
    MaskCase{0.125, "0.00", "0.13"},
    MaskCase{-0.125, "0.00", "-0.13"},
    MaskCase{0.5, "0", "1"},
    MaskCase{1.5, "#0.0000", "1.5000"},
    MaskCase{0.0001234, "0.00000", "0.00012"},
    MaskCase{0.00015, "0.000000", "0.000150"},
    MaskCase{12.3456, "#0.000", "12.346"},
    MaskCase{5, "##0.00", "5.00"},
    MaskCase{0.004999, "0.00", "0.00"},
    MaskCase{1e20, "##,##0", "100,000,000,000,000,000,000"},
    MaskCase{99999.95, "##,##0.0", "100,000.0"},         // a carry that adds a group
    MaskCase{16.04f, "##0.0000", "16.0400"},              // a stored single, 16.0400009...
    MaskCase{0.85f, "0.00000", "0.85000"},
    MaskCase{1e-300, "0.00", "0.00"}));

INSTANTIATE_TEST_SUITE_P(AllHashIntegers, DisplayMask, testing::Values(
    MaskCase{0, "#,###,###", ""},                         // zero prints nothing
    MaskCase{0.4, "#,###,###", ""},                       // and so does what rounds to zero
    MaskCase{-0.4, "#,###,###", ""},
    MaskCase{0.5, "#,###,###", "1"},
    MaskCase{31364.0566, "#,###,###", "31,364"},
    MaskCase{123456789.5, "###,###,###", "123,456,790"},
    MaskCase{1234567890, "#,###,###,###", "1,234,567,890"},
    MaskCase{0, "#", ""},
    MaskCase{7.5, "#", "8"},
    MaskCase{0, "#,###,##0", "0"},
    MaskCase{1234.56, "#,###,###0.0", "1,234.6"},
    MaskCase{0, "#,###,###0.0", "0.0"}));

INSTANTIATE_TEST_SUITE_P(Scientific, DisplayMask, testing::Values(
    MaskCase{1.0, "0.0000E+00", "1.0000E+00"},           // 0.001 kg/m-s shown in cP
    MaskCase{0.00012345, "0.0000E+00", "1.2345E-04"},
    MaskCase{12345, "0.0000E+00", "1.2345E+04"},
    MaskCase{0, "0.0000E+00", "0.0000E+00"},
    MaskCase{-5.72519093e-05, "0.000E+00", "-5.725E-05"},
    MaskCase{9.99995, "0.0000E+00", "1.0000E+01"},        // mantissa carry raises the exponent
    MaskCase{1e100, "0.00E+00", "1.00E+100"},
    MaskCase{1e-300, "0.00E+00", "1.00E-300"},
    MaskCase{0.85f, "0.0000E+00", "8.5000E-01"},
    MaskCase{1.5e-7, "0.00E-00", "1.50E-07"},
    MaskCase{1.5e7, "0.00E-00", "1.50E07"}));

TEST(DisplayMaskSymbols, GroupAndPointFollowTheSymbolsGiven)
{
    EXPECT_EQ(formatMask(1234567.125, "##,##0.00", {'.', ','}), "1.234.567,13");
}

TEST(DisplayMaskSymbols, ANonFiniteValueCannotBeShown)
{
    EXPECT_THROW(formatMask(std::numeric_limits<double>::infinity(), "0.00"), kestrova::NumericFault);
    EXPECT_THROW(formatMask(std::numeric_limits<double>::quiet_NaN(), "0.00"), kestrova::NumericFault);
}
