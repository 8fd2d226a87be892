#include "reports/Reports.h"
#include "tests/platform/Pdf.h"
#include "tests/reports/Reports.h"

using namespace forms;

namespace {

class HumidityReport : public ReportCommandTest
{
protected:
    static inline HumidityTexts texts;
    static inline int timesRead = 0;

    static HumidityTexts read()
    {
        ++timesRead;
        return texts;
    }

    static std::string printed()
    {
        return TextOfReport([](ReportWriter& report) { WritePrintedHumidityReport(report, read); });
    }
    static std::string saved()
    {
        return TextOfReport([](ReportWriter& report) { WriteSavedHumidityReport(report, read); });
    }

    /// The texts of a new form, without numbers.
    static void labelInEnglish()
    {
        texts = {};
        texts.spaceVolume.unit = " cubic feet (ft3)";
        texts.airChanges.unit = " AC";
        texts.outsideAir.unit = " ft3 per min.";
        texts.massPerHour.unit = " lb. per hr.";
        texts.massPerDay.unit = " lb. per day";
        texts.flowPerHour.unit = " gal. per hr.";
        texts.flowPerDay.unit = " gal. per day";
    }

    static void labelInMetric()
    {
        InMetric();
        texts = {};
        texts.spaceVolume.unit = " cubic meters";
        texts.airChanges.unit = "  AC";
        texts.outsideAir.unit = " cubic meters per hour";
        texts.massPerHour.unit = " kg per hour";
        texts.massPerDay.unit = " kg per day";
        texts.flowPerHour.unit = " liters per hour";
        texts.flowPerDay.unit = " liters per day";
    }

    static void enterSpace(const char* volume, const char* airChanges, const char* outsideAir)
    {
        texts.spaceVolume.value = volume;
        texts.airChanges.value = airChanges;
        texts.outsideAir.value = outsideAir;
    }

    static void showMoisture(const char* massPerHour, const char* massPerDay, const char* flowPerHour,
                             const char* flowPerDay)
    {
        texts.massPerHour.value = massPerHour;
        texts.massPerDay.value = massPerDay;
        texts.flowPerHour.value = flowPerHour;
        texts.flowPerDay.value = flowPerDay;
    }

    static void solveAirInEnglish()
    {
        labelInEnglish();
        HumidOutsideAir = {.Grains = 10.5F,
                           .RH = 0.434F,
                           .SpVol = 12.37F,
                           .h = 8.82F,
                           .W = 0.0015F,
                           .td = 14.9F,
                           .Twb = 26.1F,
                           .Tdb = 30.0F};
        HumidDesiredAir = {.Grains = 57.4F,
                           .RH = 0.493F,
                           .SpVol = 13.4F,
                           .h = 26.25F,
                           .W = 0.0082F,
                           .td = 52.0F,
                           .Twb = 60.3F,
                           .Tdb = 72.0F};
    }

    static void solveAirInMetric()
    {
        labelInMetric();
        HumidOutsideAir = {
            .RH = 0.643F, .SpVol = 0.777F, .h = 6.25F, .W = 0.0025F, .td = -5.0F, .Twb = -2.25F};
        HumidDesiredAir = {
            .RH = 0.498F, .SpVol = 0.845F, .h = 41.7F, .W = 0.0079F, .td = 10.5F, .Twb = 14.9F, .Tdb = 21.5F};
    }

    static void runInEnglish()
    {
        solveAirInEnglish();
        enterSpace("10000", "1.25", "500");
        showMoisture("15.00", "360.00", "1.80", "43.14");
    }

    static void runInMetric()
    {
        solveAirInMetric();
        enterSpace("1234.5", ".5", "2000");
        showMoisture("12.300", "295.200", "12.30", "295.20");
    }
};

TEST_F(HumidityReport, ListsAFullRun)
{
    runInEnglish();
    EXPECT_EQ(printed(), ExpectedReport("humidity-run-printed-english"));
    EXPECT_EQ(saved(), ExpectedReport("humidity-run-saved-english"));
}

TEST_F(HumidityReport, ListsAFullRunInMetricWithoutGrains)
{
    runInMetric();
    EXPECT_EQ(printed(), ExpectedReport("humidity-run-printed-metric"));
    EXPECT_EQ(saved(), ExpectedReport("humidity-run-saved-metric"));
}

TEST_F(HumidityReport, ShowsANegativeRequirement)
{
    solveAirInEnglish();
    enterSpace("0", "0", "500");
    showMoisture("-1234.50", "-29628.00", "-147.93", "-3550.39");
    EXPECT_EQ(printed(), ExpectedReport("humidity-negative-printed-english"));
    EXPECT_EQ(saved(), ExpectedReport("humidity-negative-saved-english"));
}

TEST_F(HumidityReport, ShowsANegativeRequirementInMetric)
{
    solveAirInMetric();
    enterSpace("0", "0", "2000.5");
    showMoisture("-0.025", "-0.600", "-0.03", "-0.60");
    EXPECT_EQ(printed(), ExpectedReport("humidity-negative-printed-metric"));
    EXPECT_EQ(saved(), ExpectedReport("humidity-negative-saved-metric"));
}

TEST_F(HumidityReport, ShowsLabelsAndNoNumbersOfABlankForm)
{
    labelInEnglish();
    EXPECT_EQ(printed(), ExpectedReport("humidity-blank-printed-english"));
    EXPECT_EQ(saved(), ExpectedReport("humidity-blank-saved-english"));
}

TEST_F(HumidityReport, ShowsLabelsAndNoNumbersOfABlankFormInMetric)
{
    labelInMetric();
    EXPECT_EQ(printed(), ExpectedReport("humidity-blank-printed-metric"));
    EXPECT_EQ(saved(), ExpectedReport("humidity-blank-saved-metric"));
}

TEST_F(HumidityReport, PutsOutATextThatIsNoNumberAsItStands)
{
    labelInEnglish();
    enterSpace("large", "", "");
    EXPECT_NE(printed().find("\n Volume of Space =          large          cubic feet (ft3)\n"),
              std::string::npos)
        << printed();
}

TEST_F(HumidityReport, ReadsTheFormOnceAfterBothAirs)
{
    InMetric();
    HumidDesiredAir.W = 3.0e38F; // overflows in g/kg
    EXPECT_TRUE(printed().ends_with(" Relative Humidity =        0.0%\n(Overflow)"));
    EXPECT_TRUE(saved().ends_with(" Relative Humidity =        0.0%\n(Overflow)"));
    EXPECT_EQ(timesRead, 0);
    HumidDesiredAir.W = 0.0F;
    printed();
    EXPECT_EQ(timesRead, 1);
    saved();
    EXPECT_EQ(timesRead, 2);
}

TEST_F(HumidityReport, IsSavedWithTheTextsOfTheMomentTheDialogIsConfirmed)
{
    const QString path = saveInDialog("Save Humidity Load Data to File", [this] {
        EXPECT_EQ(timesRead, 0);
        runInEnglish();
    });
    SaveHumidity(form<AnyForm>(), read);
    EXPECT_EQ(BytesOf(path), ExpectedReport("humidity-run-saved-english"));
}

TEST_F(HumidityReport, IsPrintedThroughItsTemporaryFile)
{
    dialogs.answer("PrintDialog", [this](QDialog& dialog) {
        EXPECT_EQ(timesRead, 0);
        runInMetric();
        PrintToFile(file("humidity.pdf"))(dialog);
    });
    PrintHumidity(form<AnyForm>(), read);
    EXPECT_EQ(BytesOf(base + "/tempdata/humidity.txt"), ExpectedReport("humidity-run-printed-metric"));
    EXPECT_NE(TextOf(file("humidity.pdf")).find("12.3 kg per hour"), std::string::npos);
}

TEST_F(HumidityReport, DoesNotReadTheFormOnCancel)
{
    dialogs.answer("SaveDialog", [](QDialog& dialog) { Cancel(dialog); });
    SaveHumidity(form<AnyForm>(), read);
    dialogs.answer("PrintDialog", [](QDialog& dialog) { Cancel(dialog); });
    PrintHumidity(form<AnyForm>(), read);
    EXPECT_EQ(timesRead, 0);
}

} // namespace
