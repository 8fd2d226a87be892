#include "reports/ReportWriter.h"

#include <gtest/gtest.h>

namespace {

/// The one line that a form writes.
template <class... Texts>
std::string lineOf(void (ReportWriter::*form)(Texts...), const std::type_identity_t<Texts>&... texts)
{
    std::string written;
    ReportWriter report([&written](const std::string& line) { written += line; },
                        [] { return std::string("21 Nov 2026"); });
    (report.*form)(texts...);
    return written;
}

std::string LabelAndValue(std::string_view label, std::string_view value)
{
    return lineOf(&ReportWriter::labelAndValue, label, value);
}

std::string LabelValueAndUnit(std::string_view label, std::string_view value, std::string_view unit)
{
    return lineOf(&ReportWriter::labelValueAndUnit, label, value, unit);
}

std::string ValueAndUnit(std::string_view value, std::string_view unit)
{
    return lineOf(&ReportWriter::valueAndUnit, value, unit);
}

/// The column at which a text begins, counted from 1.
std::size_t columnOf(const std::string& text, const std::string& line) { return line.find(text) + 1; }

TEST(LineForms, BeginTheDateAtColumn40)
{
    EXPECT_EQ(lineOf(&ReportWriter::dateLine), "                                       21 Nov 2026");
    EXPECT_EQ(columnOf("21 Nov", lineOf(&ReportWriter::dateLine)), 40U);
}

TEST(LineForms, BeginAHeadingAtColumn2)
{
    EXPECT_EQ(lineOf(&ReportWriter::heading, "Mixed Air"), " Mixed Air");
}

TEST(LineForms, RuleOffWith37HyphensFromColumn2)
{
    EXPECT_EQ(lineOf(&ReportWriter::rule), " -------------------------------------");
    EXPECT_EQ(lineOf(&ReportWriter::rule).size(), 38U);
}

TEST(LineForms, SetLabelValueAndUnitAtTheColumns2And29And43)
{
    const std::string line = LabelValueAndUnit("Dry Bulb Temp = ", "70.0", " deg F");
    EXPECT_EQ(line, " Dry Bulb Temp =            70.0           deg F");
    EXPECT_EQ(columnOf("Dry", line), 2U);
    EXPECT_EQ(columnOf("70.0", line), 29U);
    EXPECT_EQ(columnOf(" deg F", line.substr(42)), 1U);
}

TEST(LineForms, SetWhatFollowsAShortLabelOneZoneEarlier)
{
    const std::string line = LabelValueAndUnit("Enthalpy = ", "25.31", " Btu/lb.");
    EXPECT_EQ(line, " Enthalpy =   25.31          Btu/lb.");
    EXPECT_EQ(columnOf("25.31", line), 15U);
    EXPECT_EQ(columnOf(" Btu", line), 29U);
}

TEST(LineForms, SetTheValueOfTheLongestLabelDirectlyBehindIt)
{
    // 26 characters starting at column 2 end at column 27
    const std::string line = LabelValueAndUnit("Humidity Ratio (grains) = ", "54.5", " grains ");
    EXPECT_EQ(line, " Humidity Ratio (grains) =  54.5           grains ");
}

TEST(LineForms, SetALabelOf12CharactersOneZoneEarlierThanOneOf13)
{
    EXPECT_EQ(columnOf("x", LabelAndValue(std::string(12, '='), "x")), 15U);
    EXPECT_EQ(columnOf("x", LabelAndValue(std::string(14, '='), "x")), 29U);
    EXPECT_EQ(columnOf("x", LabelAndValue(std::string(26, '='), "x")), 29U);
    EXPECT_EQ(columnOf("x", LabelAndValue(std::string(28, '='), "x")), 43U);
}

TEST(LineForms, SetTheUnitAtColumn43BehindAValueOf13CharactersAndAtTheNextZoneBehindMore)
{
    EXPECT_EQ(LabelValueAndUnit("Dry Bulb Temp = ", "1234567890123", "#").find('#'), 42U);
    EXPECT_EQ(LabelValueAndUnit("Dry Bulb Temp = ", "123456789012345", "#").find('#'), 56U);
}

TEST(LineForms, LeaveTheZoneOfAnEmptyValueEmpty)
{
    const std::string line = LabelValueAndUnit("Air Flow Rate = ", "", " cfm");
    EXPECT_EQ(line, " Air Flow Rate =                           cfm");
    EXPECT_EQ(line.find(" cfm"), 42U);
    EXPECT_EQ(LabelValueAndUnit("Enthalpy = ", "", " kJ/kg"), " Enthalpy =                  kJ/kg");
}

TEST(LineForms, PadToTheZoneOfAnEmptyValueWithoutUnit)
{
    EXPECT_EQ(LabelAndValue("Relative Humidity = ", ""), " Relative Humidity =        ");
    EXPECT_EQ(LabelAndValue("Relative Humidity = ", "50.0%"), " Relative Humidity =        50.0%");
}

TEST(LineForms, SetAValueAndItsUnitAtTheColumns2And15)
{
    EXPECT_EQ(ValueAndUnit("12.3", " lb/hr"), " 12.3          lb/hr");
    EXPECT_EQ(ValueAndUnit("", " lb/hr"), "               lb/hr");
    EXPECT_EQ(ValueAndUnit("12,345,678.123", "u").find('u'), 28U);
}

TEST(LineForms, SetAValueAtColumn4)
{
    EXPECT_EQ(lineOf(&ReportWriter::column4Line, "a text"), "   a text");
    EXPECT_EQ(lineOf(&ReportWriter::column4DateLine), "   21 Nov 2026");
    EXPECT_EQ(lineOf(&ReportWriter::column4Line, ""), "   ");
}

TEST(LineForms, CountCharactersAndNotBytes)
{
    // A narrow no-break space, three bytes in UTF-8, between the groups of a French number.
    const std::string line = LabelValueAndUnit("Air Flow Rate = ", "12\u202f345", " m3/hr");
    EXPECT_EQ(line, " Air Flow Rate =            12\u202f345         m3/hr");
}

TEST(LineForms, BeginAZoneEvery14Columns)
{
    const auto columnBehind = [](std::size_t length) {
        return columnOf("x", ValueAndUnit(std::string(length, '.'), "x"));
    };
    EXPECT_EQ(columnBehind(0), 15U);
    EXPECT_EQ(columnBehind(12), 15U);
    EXPECT_EQ(columnBehind(14), 29U);
    EXPECT_EQ(columnBehind(26), 29U);
    EXPECT_EQ(columnBehind(28), 43U);
    EXPECT_EQ(columnBehind(54), 57U);
    EXPECT_EQ(columnBehind(56), 71U);
}

} // namespace
