// Numbers as the program shows them.

#include "tests/core/CoreTest.h"

#include <clocale>
#include <cmath>
#include <cstdio>
#include <limits>
#include <locale>
#include <random>

namespace {

const NumberLocale German{",", "."};
const NumberLocale French{",", "\u202F"};
const NumberLocale Swiss{".", "\u2019"};

} // namespace

using NumberText = EnglishCore;

TEST_F(NumberText, ShowsAPlainNumberAsShortAsItCanBe)
{
    EXPECT_EQ(PlainText(14.696F), "14.696");
    EXPECT_EQ(PlainText(101.325F), "101.325");
    EXPECT_EQ(PlainText(0.1F), "0.1");
    EXPECT_EQ(PlainText(0.1), "0.1");
    EXPECT_EQ(PlainText(-0.5F), "-0.5");
    EXPECT_EQ(PlainText(70.0F), "70");
    EXPECT_EQ(PlainText(100000.0F), "100000");
    EXPECT_EQ(PlainText(0.0F), "0");
    EXPECT_EQ(PlainText(-0.0F), "0");
    EXPECT_EQ(PlainText(-0.0), "0");
}

TEST_F(NumberText, ShowsNoMoreThanSevenDigitsOfASingleAndFifteenOfADouble)
{
    EXPECT_EQ(PlainText(1.0F / 3.0F), "0.3333333");
    EXPECT_EQ(PlainText(2.0F / 3.0F), "0.6666667");
    EXPECT_EQ(PlainText(16777216.0F), "16777220");
    EXPECT_EQ(PlainText(1048576.5F), "1048577");
    EXPECT_EQ(PlainText(9999999.5e3F), "10000000000");
    EXPECT_EQ(PlainText(1.0 / 3.0), "0.333333333333333");
    EXPECT_EQ(PlainText(0.1 + 0.2), "0.3");
    EXPECT_EQ(PlainText(70.0F - 0.01), "69.99");
    EXPECT_EQ(PlainText(123456789012345678.0), "123456789012346000");
}

TEST_F(NumberText, ShowsNoExponent)
{
    EXPECT_EQ(PlainText(0.00001), "0.00001");
    EXPECT_EQ(PlainText(0.00001F), "0.00001");
    EXPECT_EQ(PlainText(1e-10F), "0.0000000001");
    EXPECT_EQ(PlainText(3e38F), "300000000000000000000000000000000000000");
    EXPECT_EQ(PlainText(1e20), "100000000000000000000");
    EXPECT_EQ(PlainText(std::numeric_limits<double>::denorm_min()),
              "0." + std::string(323, '0') + "494065645841247");
    EXPECT_EQ(PlainText(std::numeric_limits<double>::max()).size(), 309U);
}

TEST_F(NumberText, ShowsATaggedNumberByItsKind)
{
    EXPECT_EQ(PlainText(TaggedNumber(100)), "100");
    EXPECT_EQ(PlainText(TaggedNumber(1.0F / 3.0F)), "0.3333333");
    EXPECT_EQ(PlainText(TaggedNumber(1.0 / 3.0)), "0.333333333333333");
    EXPECT_EQ(PlainText(TaggedNumber(" 1,000 cfm")), " 1,000 cfm");
    EXPECT_EQ(PlainText(TaggedNumber("")), "");
}

TEST_F(NumberText, ShowsTheUsersDecimalPointAndNoGroups)
{
    numberLocale = German;
    EXPECT_EQ(PlainText(14.696F), "14,696");
    EXPECT_EQ(PlainText(1234567.0), "1234567");
}

TEST_F(NumberText, ReadsBackWhatItShows)
{
    for (const NumberLocale& locale : {NumberLocale{}, German, French, Swiss}) {
        numberLocale = locale;
        for (int hundredths = -50000; hundredths <= 50000; ++hundredths) {
            const double value = hundredths / 100.0;
            ASSERT_EQ(ParseDouble(PlainText(value)), value);
            const Single single = RoundToSingle(value);
            ASSERT_EQ(ParseSingle(PlainText(single)), single);
        }
    }
}

TEST_F(NumberText, ShowsTheDigitsThatAnIndependentConversionGives)
{
    std::mt19937_64 random(11);
    const auto plain = [](std::string text) { // without an exponent: the values are neither large nor small
        while (text.find('.') != std::string::npos && (text.back() == '0' || text.back() == '.')) {
            const bool point = text.back() == '.';
            text.pop_back();
            if (point)
                break;
        }
        return text;
    };
    for (int i = 0; i < 300000; ++i) {
        const double value = std::uniform_real_distribution<double>(1.0, 10.0)(random);
        char text[40];
        std::snprintf(text, sizeof text, "%.14f", value);
        ASSERT_EQ(PlainText(value), plain(text));
        const Single single = RoundToSingle(value);
        const long long millionths = std::llround(static_cast<double>(single) * 1e6); // an exact product
        std::snprintf(text, sizeof text, "%lld.%06lld", millionths / 1000000, millionths % 1000000);
        ASSERT_EQ(PlainText(single), plain(text));
    }
}

TEST_F(NumberText, IsDeafToTheLocaleOfTheProcess)
{
    struct Comma : std::numpunct<char>
    {
        char do_decimal_point() const override { return ','; }
        char do_thousands_sep() const override { return '.'; }
        std::string do_grouping() const override { return "\3"; }
    };
    const std::locale before = std::locale::global(std::locale(std::locale::classic(), new Comma));
    const char* comma = std::setlocale(LC_ALL, "de_DE.UTF-8");
    RecordProperty("decimal_comma_of_the_C_library", comma == nullptr ? "not installed here" : comma);

    EXPECT_EQ(ParseDouble("1,234.5"), 1234.5);
    EXPECT_EQ(PlainText(1234.5), "1234.5");
    EXPECT_EQ(FormatNumber(1234.5, "#,##0.00"), "1,234.50");

    std::setlocale(LC_ALL, "C");
    std::locale::global(before);
}
