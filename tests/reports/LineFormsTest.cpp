#include "reports/LineForms.h"

#include <gtest/gtest.h>

namespace {

/// The column, from 1, that a text begins at.
std::size_t columnOf(const std::string& text, const std::string& line) { return line.find(text) + 1; }

TEST(LineForms, BeginTheDateAtColumn40)
{
    EXPECT_EQ(DateLine("21 Nov 2026"), "                                       21 Nov 2026");
    EXPECT_EQ(columnOf("21 Nov", DateLine("21 Nov 2026")), 40U);
}

TEST(LineForms, BeginAHeadingAtColumn2) { EXPECT_EQ(Heading("Mixed Air"), " Mixed Air"); }

TEST(LineForms, RuleOffWith37HyphensFromColumn2)
{
    EXPECT_EQ(Rule(), " -------------------------------------");
    EXPECT_EQ(Rule().size(), 38U);
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
    // 26 characters from column 2 end at column 27
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
    EXPECT_EQ(Column4Line("21 Nov 2026"), "   21 Nov 2026");
    EXPECT_EQ(Column4Line(), "   ");
}

TEST(LineForms, CountCharactersAndNotBytes)
{
    // A narrow no-break space, three bytes in UTF-8, between the groups of a French number.
    const std::string line = LabelValueAndUnit("Air Flow Rate = ", "12\u202f345", " m3/hr");
    EXPECT_EQ(line, " Air Flow Rate =            12\u202f345         m3/hr");
}

TEST(ReportLine, ZonesBeginEvery14Columns)
{
    EXPECT_EQ(ReportLine().PrintZone().put("x").text().find('x'), 14U);
    EXPECT_EQ(ReportLine().PrintZone().PrintZone().put("x").text().find('x'), 28U);
    EXPECT_EQ(ReportLine().PrintZone().PrintZone().PrintZone().put("x").text().find('x'), 42U);
    EXPECT_EQ(ReportLine().put(std::string(55, '.')).PrintZone().put("x").text().find('x'), 56U);
    EXPECT_EQ(ReportLine().put(std::string(57, '.')).PrintZone().put("x").text().find('x'), 70U);
}

TEST(ReportLine, GoesNowhereToAColumnItHasPassed)
{
    EXPECT_EQ(ReportLine().put("12345").toColumn(4).put("x").text(), "12345x");
    EXPECT_EQ(ReportLine().put("123").toColumn(4).put("x").text(), "123x");
}

} // namespace
