#include "numeric/field_text.h"
#include "numeric/numeric_fault.h"

#include <gtest/gtest.h>

using kestrova::parseFieldNumber;

TEST(FieldText, NumbersReadWithGroupingSeparatorsIgnored)
{
    EXPECT_EQ(parseFieldNumber("1,234,567.13"), 1234567.13);
    EXPECT_EQ(parseFieldNumber("  42 "), 42);
    EXPECT_EQ(parseFieldNumber("-0.5"), -0.5);
    EXPECT_EQ(parseFieldNumber("+.5"), 0.5);
    EXPECT_EQ(parseFieldNumber("5."), 5);
    EXPECT_EQ(parseFieldNumber("1.0000E+00"), 1);
    EXPECT_EQ(parseFieldNumber("1.2345E-04"), 1.2345e-4);
    EXPECT_EQ(parseFieldNumber("1e-400"), 0); // below the double range it is zero
}

TEST(FieldText, UnreadableTextReadsZero)
{
    for (const char* text : {"", " ", "-", ".", "abc", "12abc", "1.2.3", "1e", "NaN", "nan", "inf",
                             "Infinity", "0x10", "1 000", "--1", "1e+"})
        EXPECT_EQ(parseFieldNumber(text), 0.0) << '"' << text << '"';
}

TEST(FieldText, OtherLocaleSymbols)
{
    EXPECT_EQ(parseFieldNumber("1.234,5", '.', ','), 1234.5);
}

TEST(FieldText, ANumberBeyondTheDoubleRangeIsAnOverflow)
{
    EXPECT_THROW(parseFieldNumber("1e400"), kestrova::NumericFault);
    EXPECT_THROW(parseFieldNumber("-1e400"), kestrova::NumericFault);
}
