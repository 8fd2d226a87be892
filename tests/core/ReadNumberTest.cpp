// Numbers as a person types them.

#include "tests/core/CoreTest.h"

#include <cmath>
#include <cstdlib>
#include <limits>
#include <random>

namespace {

const NumberLocale German{",", "."};
const NumberLocale French{",", "\u202F"};
const NumberLocale Swiss{".", "\u2019"};

const char* const noNumbers[] = {"",    " ",    "abc",  "12a", "1 2",   "--1",   "+-1",   "- 1",     ".",
                                 "-",   "-.",   ",5",   ",",   "1.2.3", "1.2,3", "1e",    "1e+",     "1e1.5",
                                 "e5",  "1 e5", "0x10", "inf", "-inf",  "nan",   "INF",   "NaN",     "1f",
                                 "1d5", "&H10", "$5",   "5%",  "(5)",   "5-",    "1_000", "infinity"};

} // namespace

using NumberText = EnglishCore;

TEST_F(NumberText, ReadsWhatAPersonTypes)
{
    EXPECT_EQ(ParseDouble("70"), 70.0);
    EXPECT_EQ(ParseDouble("70.35"), 70.35);
    EXPECT_EQ(ParseDouble("-40"), -40.0);
    EXPECT_EQ(ParseDouble("+5"), 5.0);
    EXPECT_EQ(ParseDouble("5."), 5.0);
    EXPECT_EQ(ParseDouble(".5"), 0.5);
    EXPECT_EQ(ParseDouble("-.5"), -0.5);
    EXPECT_EQ(ParseDouble("007"), 7.0);
    EXPECT_EQ(ParseDouble("1e3"), 1000.0);
    EXPECT_EQ(ParseDouble("1.5E-3"), 0.0015);
    EXPECT_EQ(ParseDouble("5.e+2"), 500.0);
    EXPECT_EQ(ParseDouble("  70 "), 70.0);
    EXPECT_EQ(ParseDouble("\t70\t"), 70.0);
}

TEST_F(NumberText, ReadsGroupSeparatorsAnywhereInFrontOfTheDecimalPoint)
{
    EXPECT_EQ(ParseDouble("1,234,567.8"), 1234567.8);
    EXPECT_EQ(ParseDouble("1,2,3"), 123.0);
    EXPECT_EQ(ParseDouble("1,,000"), 1000.0);
    EXPECT_EQ(ParseDouble("12,.5"), 12.5);
    EXPECT_EQ(ParseDouble("12,"), 12.0);
    EXPECT_EQ(ParseDouble("1,2e3"), 12000.0);
    EXPECT_EQ(ErrorOf([] { ParseDouble("1.234,5"); }), TypeMismatch);
    EXPECT_EQ(ErrorOf([] { ParseDouble("1e3,0"); }), TypeMismatch);
    EXPECT_EQ(ErrorOf([] { ParseDouble("-,5"); }), TypeMismatch);
}

TEST_F(NumberText, RefusesEverythingElseAsATypeMismatch)
{
    for (const char* text : noNumbers)
        EXPECT_EQ(ErrorOf([&] { ParseDouble(text); }), TypeMismatch) << '"' << text << '"';
    EXPECT_EQ(ErrorOf([] { ParseDouble(std::string_view("1\0", 2)); }), TypeMismatch);
}

TEST_F(NumberText, ReadsTheUsersOwnSpelling)
{
    numberLocale = German;
    EXPECT_EQ(ParseDouble("14,696"), 14.696);
    EXPECT_EQ(ParseDouble("1.234.567,8"), 1234567.8);
    EXPECT_EQ(ParseDouble("70.5"), 705.0); // the point is the group separator here
    EXPECT_EQ(ErrorOf([] { ParseDouble("1,5,0"); }), TypeMismatch);

    numberLocale = French;
    EXPECT_EQ(ParseDouble("1\u202F234,5"), 1234.5);
    EXPECT_EQ(ErrorOf([] { ParseDouble("1 234,5"); }), TypeMismatch);
    EXPECT_EQ(ErrorOf([] { ParseDouble("1\u00A0234,5"); }), TypeMismatch);
    EXPECT_EQ(ErrorOf([] { ParseDouble("1.5"); }), TypeMismatch);

    numberLocale = Swiss;
    EXPECT_EQ(ParseDouble("1\u2019234.5"), 1234.5);
    EXPECT_EQ(ErrorOf([] { ParseDouble("1\xE2\x80"); }), TypeMismatch); // half a separator

    numberLocale = {".", ""};
    EXPECT_EQ(ParseDouble("1234.5"), 1234.5);
    EXPECT_EQ(ErrorOf([] { ParseDouble("1,234.5"); }), TypeMismatch);
}

TEST_F(NumberText, TellsTooLargeFromTooSmall)
{
    EXPECT_EQ(ErrorOf([] { ParseDouble("1e400"); }), Overflow);
    EXPECT_EQ(ErrorOf([] { ParseDouble("-1e309"); }), Overflow);
    EXPECT_EQ(ErrorOf([] { ParseDouble("1e99999999999999999999"); }), Overflow);
    EXPECT_EQ(ErrorOf([] { ParseDouble(std::string(400, '9')); }), Overflow);
    EXPECT_EQ(ErrorOf([] { ParseDouble("0.0001e320"); }), Overflow);
    EXPECT_EQ(ErrorOf([] { ParseDouble("1.7976931348623159e308"); }), Overflow);
    EXPECT_EQ(ParseDouble("1.7976931348623157e308"), std::numeric_limits<double>::max());

    EXPECT_EQ(ParseDouble("1e-400"), 0.0);
    EXPECT_EQ(ParseDouble("-1e-400"), 0.0);
    EXPECT_EQ(ParseDouble("1e-99999999999999999999"), 0.0);
    EXPECT_EQ(ParseDouble("0." + std::string(400, '0') + "1"), 0.0);
    EXPECT_EQ(ParseDouble("1000e-400"), 0.0);
    EXPECT_EQ(ParseDouble("4.9406564584124654e-324"), std::numeric_limits<double>::denorm_min());
    EXPECT_EQ(ParseDouble("1e-310"), 1e-310);

    EXPECT_EQ(ParseDouble("0e999"), 0.0);
    EXPECT_EQ(ParseDouble("0e99999999999999999999"), 0.0);
    EXPECT_EQ(ParseDouble("0." + std::string(400, '0') + "1e401"), 1.0);
    EXPECT_EQ(ParseDouble("1" + std::string(400, '0') + "e-400"), 1.0);
}

TEST_F(NumberText, ReadsAnExponentOfAnyLength)
{
    const std::string largest = "9223372036854775807"; // of a 64-bit integer
    const std::string oneLess = "9223372036854775806";
    const std::string oneMore = "9223372036854775808";
    const std::string endless(1000, '9');
    for (const std::string& exponent : {largest, oneLess, oneMore, endless, "000" + largest}) {
        for (const std::string mantissa : {"1", "1.5", "0.001", "1000", "-1"}) {
            EXPECT_EQ(ErrorOf([&] { ParseDouble(mantissa + "e" + exponent); }), Overflow) << exponent;
            EXPECT_EQ(ErrorOf([&] { ParseDouble(mantissa + "e+" + exponent); }), Overflow) << exponent;
            EXPECT_EQ(ParseDouble(mantissa + "e-" + exponent), 0.0) << exponent;
        }
        for (const std::string zero : {"0", "0.000", "-0"})
            EXPECT_EQ(ParseDouble(zero + "E" + exponent), 0.0) << exponent;
    }
    EXPECT_EQ(ParseDouble("12e" + std::string(1000, '0') + "1"), 120.0);
    EXPECT_EQ(ParseDouble("12e-" + std::string(1000, '0') + "1"), 1.2);
}

TEST_F(NumberText, ReadsAnyNumberOfDigitsAroundThePoint)
{
    const std::string zeros(1000000, '0');
    EXPECT_EQ(ErrorOf([&] { ParseDouble("1" + zeros); }), Overflow);
    EXPECT_EQ(ErrorOf([&] { ParseDouble("1" + zeros + "e9223372036854775807"); }), Overflow);
    EXPECT_EQ(ParseDouble("0." + zeros + "1"), 0.0);
    EXPECT_EQ(ParseDouble("0." + zeros + "1e-9223372036854775808"), 0.0);
    EXPECT_EQ(ParseDouble("1" + zeros + "e-1000000"), 1.0);
    EXPECT_EQ(ParseDouble("0." + zeros + "1e1000001"), 1.0);
    EXPECT_EQ(ParseDouble(zeros + "70." + zeros), 70.0);
    EXPECT_EQ(ParseDouble("0." + zeros + "e5"), 0.0);
}

TEST_F(NumberText, TellsTooLargeFromTooSmallAtEachPlaceOfThePoint)
{
    // The place of the first digit decides, wherever the point is.
    for (int places = 0; places <= 400; ++places) {
        const std::string zeros(static_cast<std::size_t>(places), '0');
        const std::string up = std::to_string(309 + places);
        const std::string down = std::to_string(330 + places);
        EXPECT_EQ(ErrorOf([&] { ParseDouble("0." + zeros + "1e" + std::to_string(310 + places)); }),
                  Overflow);
        EXPECT_EQ(ErrorOf([&] { ParseDouble("1" + zeros + "e" + up); }), Overflow);
        EXPECT_EQ(ParseDouble("1" + zeros + "e-" + down), 0.0);
        EXPECT_EQ(ParseDouble("0." + zeros + "1e-" + down), 0.0);
    }
}

TEST_F(NumberText, ReadsTheNearestDouble)
{
    std::mt19937_64 random(7);
    for (int i = 0; i < 500000; ++i) {
        std::string text = std::to_string(random());
        text.insert(1 + static_cast<std::size_t>(random() % text.size()), 1, '.');
        if (random() % 2 == 0) {
            text += 'e';
            text += std::to_string(static_cast<int>(random() % 560) - 280);
        }
        ASSERT_TRUE(SameBits(ParseDouble(text), std::strtod(text.c_str(), nullptr))) << text;
    }
}

TEST_F(NumberText, ReadsBooleansOfTheStore)
{
    for (const char* text : {"True", "true", "TRUE", "-1", "1", "0.5", "1e-300"})
        EXPECT_EQ(ParseBoolean(text), True16) << text;
    for (const char* text : {"False", "false", "FALSE", "0", "-0", "0.000", "0e5"})
        EXPECT_EQ(ParseBoolean(text), False16) << text;
    for (const char* text : {"", "yes", "on", "T", "Truee", "Tru", "falsch"})
        EXPECT_EQ(ErrorOf([&] { ParseBoolean(text); }), TypeMismatch) << text;
    numberLocale = German;
    EXPECT_EQ(ParseBoolean("0,5"), True16);
}
