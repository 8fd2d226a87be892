#include "reports/Reports.h"
#include "tests/platform/Pdf.h"
#include "tests/reports/Reports.h"

using namespace forms;

namespace {

class AirPropertiesReport : public ReportCommandTest
{
protected:
    std::string written(AirBlock::Conversion fractionOf = SavedFraction) const
    {
        return TextOfReport(
            [&](ReportWriter& report) { WriteAirPropertiesReport(report, fields, fractionOf); });
    }

    /// The line of the relative humidity.
    std::string humidityLine(AirBlock::Conversion fractionOf) const
    {
        const std::string text = written(fractionOf);
        const std::size_t start = text.find(" Relative");
        return text.substr(start, text.find('\n', start) - start);
    }

    // 70 degrees Fahrenheit and 50 percent, as the calculator shows them
    AirBlock fields{.Tdb = "70",
                    .Twb = "58.44",
                    .td = "50.5",
                    .RH = "50.0",
                    .W = "0.0077815",
                    .Grains = "54.47",
                    .SpVol = "13.5140",
                    .h = "25.309"};
};

TEST_F(AirPropertiesReport, ListsTheFieldsInEnglish)
{
    EXPECT_EQ(written(SavedFraction), ExpectedReport("air-properties-english"));
    EXPECT_EQ(written(PrintedFraction), ExpectedReport("air-properties-english"));
}

TEST_F(AirPropertiesReport, ListsTheFieldsInMetricWithoutTheGrains)
{
    InMetric();
    fields = {.Tdb = "21.0",
              .Twb = "14.6",
              .td = "10.2",
              .RH = "50",
              .W = "7.73",
              .Grains = "54.1",
              .SpVol = "0.844",
              .h = "40.77"};
    EXPECT_EQ(written(), ExpectedReport("air-properties-metric"));
}

TEST_F(AirPropertiesReport, LeavesTheValueOfAnEmptyFieldEmpty)
{
    fields = {.Tdb = "", .Twb = "", .td = "", .RH = "100.0", .W = "", .Grains = "", .SpVol = "", .h = ""};
    EXPECT_EQ(written(), ExpectedReport("air-properties-blank"));
}

TEST_F(AirPropertiesReport, ShowsWhatIsNoNumberAsItStands)
{
    fields.Twb = "a text";
    EXPECT_NE(written().find("\n Wet Bulb Temp =            a text         deg F\n"), std::string::npos);
}

TEST_F(AirPropertiesReport, StopsBeforeAHumidityThatIsNoNumber)
{
    const std::string whole = ExpectedReport("air-properties-english");
    const std::string before = whole.substr(0, whole.find(" Relative"));
    for (const char* text : {"", " ", "a text"}) {
        fields.RH = text;
        EXPECT_EQ(written(), before + "(Type mismatch)") << '"' << text << '"';
    }
    fields.RH = "1e39";
    EXPECT_EQ(written(PrintedFraction), before + "(Overflow)");
}

TEST_F(AirPropertiesReport, ReadsTheHumidityAsSingleForThePrinterAndAsDoubleForAFile)
{
    // 0.25 percent is halfway between 0.2 and 0.3. Divided by 100, it is 0.0025 as a double, to 15 digits,
    // and rounds up. The single, 0.00249999994412065, is below the half.
    fields.RH = "0.25";
    EXPECT_EQ(humidityLine(SavedFraction), " Relative Humidity =        0.3%");
    EXPECT_EQ(humidityLine(PrintedFraction), " Relative Humidity =        0.2%");
}

TEST_F(AirPropertiesReport, IsSavedToTheFileOfTheUsersChoice)
{
    const QString path = saveInDialog("Save Data to File");
    SaveAirProperties(form<AnyForm>(), fields);
    EXPECT_EQ(BytesOf(path), ExpectedReport("air-properties-english"));
}

TEST_F(AirPropertiesReport, IsSavedWithTheHumidityAsDouble)
{
    fields.RH = "0.25";
    dialogs.answer("SaveDialog", SaveAs(file("report.txt")));
    SaveAirProperties(form<AnyForm>(), fields);
    EXPECT_NE(BytesOf(file("report.txt")).find("0.3%"), std::string::npos);
}

TEST_F(AirPropertiesReport, IsPrintedThroughItsTemporaryFile)
{
    dialogs.answer("PrintDialog", PrintToFile(file("report.pdf")));
    PrintAirProperties(form<AnyForm>(), fields);
    EXPECT_EQ(BytesOf(base + "/tempdata/Airprop.txt"), ExpectedReport("air-properties-english"));
    expectWords(TextOf(file("report.pdf")),
                {"Calculated Psychrometric Properties", "Relative Humidity = 50.0%",
                 "Humidity Ratio (grains) = 54.5 grains", "Specific Volume = 13.514 ft3 per Lb."});
}

TEST_F(AirPropertiesReport, IsPrintedWithTheHumidityAsSingle)
{
    fields.RH = "0.25";
    dialogs.answer("PrintDialog", PrintToFile(file("report.pdf")));
    PrintAirProperties(form<AnyForm>(), fields);
    EXPECT_NE(BytesOf(base + "/tempdata/Airprop.txt").find("0.2%"), std::string::npos);
}

TEST_F(AirPropertiesReport, LeavesTheFirstLinesAndBlocksAllLaterReportsWhereTheHumidityIsEmpty)
{
    const std::string whole = ExpectedReport("air-properties-english");
    fields.RH = "";
    dialogs.answer("SaveDialog", SaveAs(file("first.txt")));
    SaveAirProperties(form<AnyForm>(), fields);
    EXPECT_EQ(BytesOf(file("first.txt")), whole.substr(0, whole.find(" Relative")));

    fields.RH = "50";
    dialogs.answer("SaveDialog", SaveAs(file("second.txt")));
    SaveAirProperties(form<AnyForm>(), fields);
    EXPECT_EQ(BytesOf(file("second.txt")), "(none)");

    dialogs.answer("PrintDialog", PrintToFile(file("report.pdf")));
    PrintAirProperties(form<AnyForm>(), fields);
    EXPECT_EQ(BytesOf(base + "/tempdata/Airprop.txt"), "(none)");
    EXPECT_EQ(BytesOf(file("report.pdf")), "(none)");
    EXPECT_EQ(dialogs.shown.size(), 3U); // each command still asks
}

} // namespace
