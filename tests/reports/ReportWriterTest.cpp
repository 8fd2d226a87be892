#include "tests/reports/Reports.h"

#include "reports/AirBlock.h"

namespace {

TEST(ReportWriter, WritesEveryFormAsALine)
{
    const std::string date = Today().toStdString();
    const std::string text = TextOfReport([](ReportWriter& report) {
        report.blankLines(2);
        report.dateLine();
        report.heading("Heading");
        report.rule();
        report.labelAndValue("Relative Humidity = ", "50.0%");
        report.labelValueAndUnit("Enthalpy = ", "25.31", " Btu/lb.");
        report.valueAndUnit("12.3", " lb/hr");
        report.column4Line("text");
        report.column4DateLine();
        report.emptyColumn4Lines(2);
    });
    EXPECT_EQ(text, "\n\n" + std::string(39, ' ') + date +
                        "\n Heading\n -------------------------------------\n"
                        " Relative Humidity =        50.0%\n"
                        " Enthalpy =   25.31          Btu/lb.\n"
                        " 12.3          lb/hr\n"
                        "   text\n   " +
                        date + "\n   \n   \n");
}

/// Returns another day on each call, as at midnight.
std::string tomorrow()
{
    static int day = 0;
    return std::to_string(++day) + " May 2001";
}

TEST(ReportWriter, ReadsTheDateAnewForEachLineThatHoldsIt)
{
    std::string text;
    ReportWriter report([&text](const std::string& line) { text += line + '\n'; }, tomorrow);
    report.dateLine();
    report.column4DateLine();
    report.dateLine();
    EXPECT_EQ(text,
              std::string(39, ' ') + "1 May 2001\n   2 May 2001\n" + std::string(39, ' ') + "3 May 2001\n");
}

class AirBlockTest : public testing::Test
{
protected:
    void SetUp() override { FillUnitTables(); }

    std::string block() const
    {
        return TextOfReport([this](ReportWriter& report) { WriteAirBlock(report, air); });
    }

    AirSnapshot air;
};

TEST_F(AirBlockTest, HasEightLinesInEnglish)
{
    air = {.Grains = 54.47F, .RH = 0.5F, .SpVol = 13.514F, .h = 25.31F, .W = 0.0077815F};
    air.td = 50.5F;
    air.Twb = 58.4F;
    air.Tdb = 70.0F;
    EXPECT_EQ(block(), " Dry Bulb Temp =            70.0           deg F\n"
                       " Wet Bulb Temp =            58.4           deg F\n"
                       " Dew Point Temp =           50.5           deg F\n"
                       " Relative Humidity =        50.0%\n"
                       " Humidity Ratio (grains) =  54.5           grains \n"
                       " Humidity Ratio (W) =       0.0077815      lb. water/lb. dry air\n"
                       " Specific Volume =          13.514         ft3 per Lb.\n"
                       " Enthalpy =   25.31          Btu/lb.\n");
}

TEST_F(AirBlockTest, HasSevenLinesInMetricWithTheHumidityRatioInGrams)
{
    InMetric();
    air = {.Grains = 54.47F, .RH = 0.5F, .SpVol = 0.844F, .h = 40.77F, .W = 0.00773F};
    air.td = 10.2F;
    air.Twb = 14.6F;
    air.Tdb = 21.0F;
    EXPECT_EQ(block(), " Dry Bulb Temp =            21.0           deg C\n"
                       " Wet Bulb Temp =            14.6           deg C\n"
                       " Dew Point Temp =           10.2           deg C\n"
                       " Relative Humidity =        50.0%\n"
                       " Humidity Ratio (W) =       7.73           g water/kg dry air\n"
                       " Specific Volume =          0.844          m3 per kg\n"
                       " Enthalpy =   40.77          kJ/kg\n");
}

TEST_F(AirBlockTest, MultipliesTheHumidityRatioIntoASingle)
{
    InMetric();
    // The single nearest to 0.00090625 is 0.000906249974. Times 1000, that is 0.906249974, below the half
    // between 0.9062 and 0.9063. The single nearest to that is the half itself, 0.90625.
    air.W = 0.00090625F;
    EXPECT_NE(block().find(" 0.9063 "), std::string::npos) << block();
}

TEST_F(AirBlockTest, KeepsThePointOfAWholeValueWithNoDigitBehindIt)
{
    air = {.SpVol = 14.0F, .h = 28.0F};
    EXPECT_NE(block().find(" Specific Volume =          14.            ft3 per Lb.\n"), std::string::npos)
        << block();
    EXPECT_NE(block().find(" Enthalpy =   28.            Btu/lb.\n"), std::string::npos) << block();
}

TEST_F(AirBlockTest, StopsBeforeTheLineWhoseHumidityRatioOverflows)
{
    InMetric();
    air.W = 3.0e38F;
    EXPECT_EQ(block(), " Dry Bulb Temp =            0.0            deg C\n"
                       " Wet Bulb Temp =            0.0            deg C\n"
                       " Dew Point Temp =           0.0            deg C\n"
                       " Relative Humidity =        0.0%\n"
                       "(Overflow)");
}

TEST_F(AirBlockTest, WritesTheNumbersOfTheLocale)
{
    numberLocale = {.decimalPoint = ",", .groupSeparator = "."};
    air.Tdb = 70.25F;
    EXPECT_EQ(block().substr(0, 33), " Dry Bulb Temp =            70,3 ");
}

} // namespace
