#include "numeric/field_text.h"
#include "numeric/numeric_fault.h"

#include <gtest/gtest.h>

#include <cmath>
#include <string>
#include <vector>

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

// Each text against the double the compiler makes of the same literal, which
// is correctly rounded: halfway and near-halfway cases, a subnormal, 2^53 + 1.
TEST(FieldText, NumbersReadAsTheNearestDouble)
{
    EXPECT_EQ(parseFieldNumber("16.04"), 16.04);
    EXPECT_EQ(parseFieldNumber("0.85"), 0.85);
    EXPECT_EQ(parseFieldNumber("0.1"), 0.1);
    EXPECT_EQ(parseFieldNumber("9007199254740993"), 9007199254740992.0);
    EXPECT_EQ(parseFieldNumber("2.2250738585072011e-308"), 2.2250738585072011e-308);
    EXPECT_EQ(parseFieldNumber("4.9e-324"), 4.9e-324);
    EXPECT_EQ(parseFieldNumber("1.7976931348623157e308"), 1.7976931348623157e308);
    EXPECT_EQ(parseFieldNumber("123,456,789,012,345,678,901,234,567,890"), 123456789012345678901234567890.0);
    EXPECT_TRUE(std::signbit(parseFieldNumber("-0")));
}

// The quick reading of a cell's zero agrees with the full one on every text
// of up to four characters over the characters that matter, and on the long
// texts where the range of a single decides.
TEST(FieldText, ReadsAsZeroAgreesWithTheSingleRead)
{
    const auto fullReading = [](const std::string& text) {
        try {
            return kestrova::fieldSingle(text) == 0;
        } catch (const kestrova::NumericFault&) {
            return false;
        }
    };
    const std::string alphabet = "0.,-+5eE 1";
    std::vector<std::string> texts{""};
    for (size_t length = 1, from = 0; length <= 4; ++length) {
        const size_t to = texts.size();
        for (size_t i = from; i < to; ++i)
            for (char c : alphabet)
                texts.push_back(texts[i] + c);
        from = to;
    }
    for (const char* text : {"0.00E+05", "1E-50", "1E+39", "-0.00", "0.000000000000000000001",
                             "100,000,000,000,000,000,000,000,000,000,000,000,000", "1,234.5", "12345678901234567890",
                             "0.0000000000000000001", "-,0,.", ",-5", "1.2.3", "1.00E+00", "1E+15", "1E-15", "9.99E+16",
                             "1e+99", "1e-99", "0.00000000000001E-15", "0.0000000000000001E-9", "1E+5x", "0E+5x", " 1", "1 "})
        texts.emplace_back(text);
    for (const std::string& text : texts)
        EXPECT_EQ(kestrova::fieldReadsAsZero(text), fullReading(text)) << '"' << text << '"';
    EXPECT_TRUE(kestrova::fieldReadsAsZero("1E-50"));        // below a single's least magnitude
    EXPECT_FALSE(kestrova::fieldReadsAsZero("1E+39"));       // beyond a single: not zero, a fault
    EXPECT_FALSE(kestrova::fieldReadsAsZero("0.000000000000000000001"));
}
