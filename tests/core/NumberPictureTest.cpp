#include "tests/core/CoreTest.h"
#include "tests/core/Thoroughness.h"

#include <random>

using NumberPicture = EnglishCore;

TEST_F(NumberPicture, RoundsATypedNumberAsItReadsAndASingleAsItIsHeld)
{
    EXPECT_EQ(FormatNumber(70.35, "#0.0"), "70.4");
    EXPECT_EQ(FormatNumber(70.35F, "#0.0"), "70.3"); // stored as 70.3499985
    EXPECT_EQ(FormatNumber("70.35", "#0.0"), "70.4");
    EXPECT_EQ(FormatNumber(1234567.75F, "#,###.#"), "1,234,567.8");
    EXPECT_EQ(FormatNumber(0.125, "#0.00"), "0.13");
    EXPECT_EQ(FormatNumber(-0.125, "#0.00"), "-0.13");
    EXPECT_EQ(FormatNumber(2.5F, "#0"), "3");
    EXPECT_EQ(FormatNumber(0.285, "0.00"), "0.29"); // stored as less, but exactly half at 15 digits
    EXPECT_EQ(FormatNumber(0.2849999, "0.00"), "0.28");
}

TEST_F(NumberPicture, ShowsAZeroByThePlacesThatMustStand)
{
    const std::vector<std::pair<std::string, std::string>> zeros{
        {"#,###", ""},           {"##,##", ""},       {"#,###.##", "."},   {"#,###.#", "."},
        {"###.#", "."},          {"#,###.0", ".0"},   {"#,###.0#", ".0"},  {"##0.0", "0.0"},
        {"#0.0", "0.0"},         {"#0.00", "0.00"},   {"#0.000", "0.000"}, {"#0.0000", "0.0000"},
        {"#0.00000", "0.00000"}, {"0.0%", "0.0%"},    {"0.#######", "0."}, {"##0.###", "0."},
        {"#0.##", "0."},         {"0.0###", "0.0"},   {"#,##0", "0"},      {"#,##0.#", "0."},
        {"#,##0.0", "0.0"},      {"#,##0.0#", "0.0"}, {"#,##0.###", "0."}, {"##0.00", "0.00"},
        {"##0.000", "0.000"},
    };
    for (const auto& [picture, text] : zeros) {
        EXPECT_EQ(FormatNumber(0, picture), text) << picture;
        EXPECT_EQ(FormatNumber(-0.0F, picture), text) << picture;
        EXPECT_EQ(FormatNumber(-1e-12, picture), text) << picture;
        EXPECT_EQ(FormatNumber(1e-12F, picture), text) << picture;
    }
}

TEST_F(NumberPicture, ShowsTheFiguresOfTheScreens)
{
    EXPECT_EQ(FormatNumber(0.0077812F, "#0.00000"), "0.00778");
    EXPECT_EQ(FormatNumber(TaggedNumber(0.5F) * 100, "#0.0"), "50.0");
    EXPECT_EQ(FormatNumber(13.5251F, "#0.000"), "13.525");
    EXPECT_EQ(FormatNumber(-9.6F, "#0.00"), "-9.60");
    EXPECT_EQ(FormatNumber(54.4683, "#0.0"), "54.5");
    EXPECT_EQ(FormatNumber(1000.0F, "##,##"), "1,000");
    EXPECT_EQ(FormatNumber("1000", "##,##"), "1,000");
    EXPECT_EQ(FormatNumber(1234567.0F, "##,##"), "1,234,567");
    EXPECT_EQ(FormatNumber(999.5F, "##,##"), "1,000");
    EXPECT_EQ(FormatNumber(1000, "#,###.0#"), "1,000.0");
    EXPECT_EQ(FormatNumber(1000.25, "#,###.0#"), "1,000.25");
    EXPECT_EQ(FormatNumber(12345.67, "#,###.#"), "12,345.7");
    EXPECT_EQ(FormatNumber(12345.67, "#,###.0"), "12,345.7");
    EXPECT_EQ(FormatNumber(12.6F, "#,###"), "13");
    EXPECT_EQ(FormatNumber(12.6F, "#,###.##"), "12.6");
    EXPECT_EQ(FormatNumber(0.49F, "#,###"), "");
    EXPECT_EQ(FormatNumber(0.25, "#,###.##"), ".25");
}

TEST_F(NumberPicture, ShowsTheFiguresOfTheReports)
{
    EXPECT_EQ(FormatNumber(0.5F, "0.0%"), "50.0%");
    EXPECT_EQ(FormatNumber(0.4996F, "0.0%"), "50.0%");
    EXPECT_EQ(FormatNumber(1.0, "0.0%"), "100.0%");
    EXPECT_EQ(FormatNumber(-0.05, "0.0%"), "-5.0%");
    EXPECT_EQ(FormatNumber(0.00049, "0.0%"), "0.0%");
    EXPECT_EQ(FormatNumber(0.0005, "0.0%"), "0.1%");
    EXPECT_EQ(FormatNumber(0.0077812F, "0.#######"), "0.0077812");
    EXPECT_EQ(FormatNumber(7.2601F, "0.0###"), "7.2601");
    EXPECT_EQ(FormatNumber(7.0F, "0.0###"), "7.0");
    EXPECT_EQ(FormatNumber(54.4683, "###.#"), "54.5");
    EXPECT_EQ(FormatNumber(0.04, "###.#"), ".");
    EXPECT_EQ(FormatNumber(13.5F, "##0.###"), "13.5");
    EXPECT_EQ(FormatNumber(13.0F, "##0.###"), "13.");
    EXPECT_EQ(FormatNumber(28.0F, "#0.##"), "28.");
    EXPECT_EQ(FormatNumber("12.300", "#,##0.###"), "12.3");
    EXPECT_EQ(FormatNumber("27000", "#,##0"), "27,000");
    EXPECT_EQ(FormatNumber("0.5", "#,##0.0#"), "0.5");
    EXPECT_EQ(FormatNumber(1000.0F, "#,##0.#"), "1,000.");
}

TEST_F(NumberPicture, CarriesNinesIntoANewDigit)
{
    EXPECT_EQ(FormatNumber(999.95, "#,##0.0"), "1,000.0");
    EXPECT_EQ(FormatNumber(9.999, "#0.00"), "10.00");
    EXPECT_EQ(FormatNumber(0.999, "###.#"), "1.");
    EXPECT_EQ(FormatNumber(0.5, "#,###"), "1");
    EXPECT_EQ(FormatNumber(0.05, "#.#"), ".1");
    EXPECT_EQ(FormatNumber(129.97, "#0.0#"), "129.97");
    EXPECT_EQ(FormatNumber(129.97, "#0.#"), "130.");
}

TEST_F(NumberPicture, LosesTheSignOfWhatRoundsToZeroAndNoOther)
{
    EXPECT_EQ(FormatNumber(-0.04F, "#,###.#"), ".");
    EXPECT_EQ(FormatNumber(-0.04F, "#0.0"), "0.0");
    EXPECT_EQ(FormatNumber(-0.05, "#0.0"), "-0.1");
    EXPECT_EQ(FormatNumber(-0.05, "#,###.#"), "-.1");
    EXPECT_EQ(FormatNumber(-1234.0F, "#,###"), "-1,234");
}

TEST_F(NumberPicture, LeavesATextThatIsNoNumberAsItStands)
{
    EXPECT_EQ(FormatNumber("", "#0.0"), "");
    EXPECT_EQ(FormatNumber("abc", "#0.0"), "abc");
    EXPECT_EQ(FormatNumber(" ", "#0.0"), " ");
    EXPECT_EQ(FormatNumber("1e400", "#0.0"), "1e400");
    EXPECT_EQ(FormatNumber(" 12.34 ", "#0.0"), "12.3");
    EXPECT_EQ(FormatNumber("1,234.56", "#,##0.0"), "1,234.6");
    EXPECT_EQ(FormatNumber("0.5", "0.0%"), "50.0%");
}

TEST_F(NumberPicture, WritesTheUsersSeparators)
{
    numberLocale = {",", "."};
    EXPECT_EQ(FormatNumber(1234567.75F, "#,###.#"), "1.234.567,8");
    EXPECT_EQ(FormatNumber(0, "#,###.##"), ",");
    EXPECT_EQ(FormatNumber("70,35", "#0.0"), "70,4");
    EXPECT_EQ(FormatNumber(0.5, "0.0%"), "50,0%");
    numberLocale = {",", "\u202F"};
    EXPECT_EQ(FormatNumber(1234567.0F, "#,##0"), "1\u202F234\u202F567");
    numberLocale = {".", ""};
    EXPECT_EQ(FormatNumber(1234567.0F, "#,##0"), "1234567");
}

TEST_F(NumberPicture, TakesFifteenDigitsOfADouble)
{
    EXPECT_EQ(FormatNumber(0.1 + 0.2, "0.####################"), "0.3");
    EXPECT_EQ(FormatNumber(1.0 / 3.0, "0.####################"), "0.333333333333333");
    EXPECT_EQ(FormatNumber(1e20, "#,##0"), "100,000,000,000,000,000,000");
    EXPECT_EQ(FormatNumber(123456789012345678.0, "#0"), "123456789012346000");
    EXPECT_EQ(FormatNumber(0.1F, "0.####################"), "0.100000001490116");
}

TEST_F(NumberPicture, PadsToThePlacesThatMustStand)
{
    EXPECT_EQ(FormatNumber(5, "0#"), "05");        // from the first 0 on, every place shows a digit
    EXPECT_EQ(FormatNumber(1234, "#,0"), "1,234"); // a place on each side of the comma is enough
    EXPECT_EQ(FormatNumber(5, "000"), "005");
    EXPECT_EQ(FormatNumber(5, "0,000"), "0,005");
    EXPECT_EQ(FormatNumber(0.5, "#.#0#"), ".50");
}

TEST_F(NumberPicture, RefusesAPictureItDoesNotKnow)
{
    for (const char* picture : {"0.0 cfm", "#,", ",#", "#,,#", "0.0.0", "%0", "0.0%%", "0.,0", "x"})
        EXPECT_EQ(ErrorOf([&] { FormatNumber(1, picture); }), InvalidArgument) << picture;
}

// Compares every number with up to five decimals in the range of the screens with integer rounding.
TEST_F(NumberPicture, RoundsEveryDecimalAsOneWouldOnPaper)
{
    // 0.00000 to 125.00000, in steps of 5, so with every half of a place. The sample's step includes halves,
    // too.
    for (int n = 0; n <= 12500000; n += 5 * OneOf("numbers", 1, 20)) {
        const double value = n / 100000.0;
        const int hundredths = (n + 500) / 1000;
        std::string expected = std::to_string(hundredths / 100) + ".";
        expected += static_cast<char>('0' + hundredths / 10 % 10);
        expected += static_cast<char>('0' + hundredths % 10);
        ASSERT_EQ(FormatNumber(value, "#0.00"), expected) << n;
        ASSERT_EQ(FormatNumber(-value, "#0.00"), hundredths == 0 ? expected : "-" + expected) << n;
    }
}

// Singles have at most 24 bits, so integer arithmetic on eighths is exact.
TEST_F(NumberPicture, RoundsEveryEighthAwayFromZero)
{
    for (int eighths = 0; eighths < 400000; ++eighths) {
        const int tenths = (eighths * 10 + 4) / 8;
        const std::string expected = std::to_string(tenths / 10) + "." + std::to_string(tenths % 10);
        ASSERT_EQ(FormatNumber(static_cast<Single>(eighths) / 8.0F, "#0.0"), expected);
    }
}
