// A request line is read into the same JSON value as nlohmann's parser reads
// it, type for type, and a line that parser refuses is refused with its message.

#include "calc/request_json.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <fstream>
#include <random>
#include <string>
#include <vector>

using kestrova::calc::parseRequestJson;
using nlohmann::json;

namespace {

// Equal values of equal types all the way down (nlohmann's == holds 5u equal to 5.0).
bool sameValue(const json& a, const json& b)
{
    if (a.type() != b.type())
        return false;
    if (a.is_object()) {
        if (a.size() != b.size())
            return false;
        for (auto i = a.begin(), j = b.begin(); i != a.end(); ++i, ++j)
            if (i.key() != j.key() || !sameValue(*i, *j))
                return false;
        return true;
    }
    if (a.is_array()) {
        if (a.size() != b.size())
            return false;
        for (size_t i = 0; i < a.size(); ++i)
            if (!sameValue(a[i], b[i]))
                return false;
        return true;
    }
    if (a.is_number_float()) // the same double, bit for bit (a -0.0 is not 0.0)
        return std::signbit(a.get<double>()) == std::signbit(b.get<double>()) && a.get<double>() == b.get<double>();
    return a == b;
}

// Both readers on one line: the same value, or the same refusal.
void expectReadAsNlohmannReadsIt(const std::string& line)
{
    std::string expectedError;
    json expected;
    try {
        expected = json::parse(line);
    } catch (const json::exception& error) {
        expectedError = error.what();
    }
    try {
        const json read = parseRequestJson(line);
        EXPECT_TRUE(expectedError.empty()) << line << " was read, nlohmann refuses it: " << expectedError;
        EXPECT_TRUE(sameValue(read, expected)) << line << "\n read " << read.dump() << "\n nlohmann " << expected.dump();
    } catch (const json::exception& error) {
        EXPECT_EQ(error.what(), expectedError) << line;
    }
}

// A random value of the kinds a request line holds, with awkward numbers,
// escapes, repeated keys and nesting.
std::string randomValue(std::mt19937& random, int depth)
{
    static const char* const kNumbers[] = {
        "0", "-0", "-0.0", "0.0", "5", "-5", "16.04", "0.85", "1e5", "1E+5", "2.5e-3", "-1.5E-300", "1e308", "1e309",
        "-1e400", "4.9e-324", "2e-400", "9223372036854775807", "9223372036854775808", "-9223372036854775808",
        "-9223372036854775809", "18446744073709551615", "18446744073709551616", "123456789012345678901234567890",
        "0.1000000000000000055511151231257827", "01", "1.", ".5", "+1", "1e", "-", "0x10", "NaN", "Infinity"};
    static const char* const kStrings[] = {
        R"("")", R"j("txtData(5)")j", R"("a\"b")", R"("\\")", R"("\u00e9t\u00E9")", R"("\ud83d\ude00")", R"("\ud800")",
        R"("\udc00x")", R"("\u0000")", R"("tab\there")", "\"\xc3\xa9\"", "\"\xff\"", "\"\xed\xa0\x80\"", "\"raw\ttab\"",
        R"("\x")", R"("unterminated)"};
    static const char* const kWords[] = {"true", "false", "null", "nul", "True"};
    static const char* const kKeys[] = {"\"id\"", "\"args\"", "\"a\"", "\"b\"", "\"\""};
    switch (depth > 3 ? random() % 4 : random() % 7) {
    case 0: return kNumbers[random() % std::size(kNumbers)];
    case 1: return kStrings[random() % std::size(kStrings)];
    case 2: return kWords[random() % std::size(kWords)];
    case 3: return std::to_string(static_cast<int>(random() % 2000001) - 1000000) + "." + std::to_string(random() % 1000);
    case 4:
    case 5: {
        std::string object = "{";
        const auto fields = random() % 4;
        for (unsigned i = 0; i < fields; ++i)
            object += std::string(i ? ", " : " ") + kKeys[random() % std::size(kKeys)] +
                      ": " + randomValue(random, depth + 1);
        return object + (random() % 30 ? " }" : ",}");
    }
    default: {
        std::string array = "[";
        const auto items = random() % 5;
        for (unsigned i = 0; i < items; ++i)
            array += (i ? ", " : "") + randomValue(random, depth + 1);
        return array + (random() % 30 ? "]" : ",]");
    }
    }
}

} // namespace

TEST(RequestJson, EveryLineOfTheBatchIsReadAsBefore)
{
    std::ifstream batch(KESTROVA_CALC_TEST_DIR "/batch_requests.jsonl");
    ASSERT_TRUE(batch.good());
    int lines = 0;
    for (std::string line; std::getline(batch, line); ++lines)
        expectReadAsNlohmannReadsIt(line);
    EXPECT_GT(lines, 20);
}

TEST(RequestJson, AwkwardNumbersKeysAndTextsAreReadAsBefore)
{
    for (const char* line : {
             R"({"id": 1, "id": 2})",                         // the later key stands
             R"({"b": 1, "a": {"x": [1, 2.0, -3]}, "b": [true]})",
             R"(-0)", R"(-0.0)", R"([0, -0, 0.0, -0.0])",     // a whole -0 is 0; a -0.0 keeps its sign
             R"([9223372036854775807, 9223372036854775808, 18446744073709551615, 18446744073709551616])",
             R"([-9223372036854775808, -9223372036854775809, 1e308, 1e309, 4.9e-324, 2e-400])",
             R"([16.04, 0.85, 1E5, 2.5e-3])",
             R"("\ud83d\ude00 \u00e9 \u0000 \"")",
             R"("\ud800")", "\"\xff\"", "\"\xed\xa0\x80\"", "\"raw\ttab\"", // refused by both
             "", "   ", "{} x", "{}   ", "[1,]", "{\"a\":1,}", "NaN", "01", "1.", "[1] // note",
             "\xef\xbb\xbf{}",                                // a byte order mark
         })
        expectReadAsNlohmannReadsIt(line);
}

TEST(RequestJson, RandomLinesAreReadAsBefore)
{
    std::mt19937 random(20261124);
    for (int i = 0; i < 20000; ++i)
        expectReadAsNlohmannReadsIt(randomValue(random, 0));
}
