#include "core/CoilLoads.h"
#include "platform/Printer.h"
#include "reports/Reports.h"
#include "tests/platform/Pdf.h"
#include "tests/reports/Reports.h"

using namespace forms;

namespace {

class HeatingReport : public ReportCommandTest
{
protected:
    static std::string printed() { return TextOfReport(WritePrintedHeatingReport); }
    static std::string saved() { return TextOfReport(WriteSavedHeatingReport); }

    /// Saves entering air at 70 deg F.
    static void enterInEnglish()
    {
        HeatingEnteringAir = {.AirVolume = 1000.0F,
                              .Grains = 56.0F,
                              .RH = 0.514F,
                              .SpVol = 13.5F,
                              .h = 25.53664F,
                              .W = 0.008F,
                              .td = 51.3F,
                              .Twb = 59.0F,
                              .Tdb = 70.0F};
    }

    /// Saves entering air at 20 deg C.
    static void enterInMetric()
    {
        InMetric();
        HeatingEnteringAir = {.AirVolume = 1700.0F,
                              .RH = 0.549F,
                              .SpVol = 0.84F,
                              .h = 40.2968F,
                              .W = 0.008F,
                              .td = 10.7F,
                              .Twb = 14.4F,
                              .Tdb = 20.0F};
    }

    static void heatTo(const AirSnapshot& leaving)
    {
        HeatingLeavingAir = leaving;
        CalculateHeatingLoad(HeatingMassFlow());
        if (IsMetric())
            HeatingLoadValue = HeatingLoadValue / 3600;
        HeatingLoadSingle = HeatingLoadValue.asSingle();
    }

    static void heatInEnglish()
    {
        enterInEnglish();
        heatTo({.Grains = 56.0F,
                .RH = 0.266F,
                .SpVol = 14.0F,
                .h = 30.40768F,
                .W = 0.008F,
                .td = 51.3F,
                .Twb = 66.25F,
                .Tdb = 90.0F});
    }

    static void heatInMetric()
    {
        enterInMetric();
        heatTo({.RH = 0.229F,
                .SpVol = 0.884F,
                .h = 55.5134F,
                .W = 0.008F,
                .td = 10.7F,
                .Twb = 19.7F,
                .Tdb = 35.0F});
    }

    /// Leaving air after a refused solution: a new temperature and relative humidity, all else unchanged.
    static void refuse(Single tdb, Single rh)
    {
        AirSnapshot leaving = HeatingEnteringAir;
        leaving.Tdb = tdb;
        leaving.RH = rh;
        heatTo(leaving);
    }
};

TEST_F(HeatingReport, ShowsZerosAndNoLoadBeforeAnyCalculation)
{
    EXPECT_EQ(printed(), ExpectedReport("heating-zeros-printed-english"));
    EXPECT_EQ(saved(), ExpectedReport("heating-zeros-saved-english"));
}

TEST_F(HeatingReport, ShowsZerosAndNoLoadBeforeAnyCalculationInMetric)
{
    InMetric();
    EXPECT_EQ(printed(), ExpectedReport("heating-zeros-printed-metric"));
    EXPECT_EQ(saved(), ExpectedReport("heating-zeros-saved-metric"));
}

TEST_F(HeatingReport, ListsAFullRun)
{
    heatInEnglish();
    EXPECT_EQ(printed(), ExpectedReport("heating-run-printed-english"));
    EXPECT_EQ(saved(), ExpectedReport("heating-run-saved-english"));
}

// 8.55 kW. The report drops the decimals that the screen shows.
TEST_F(HeatingReport, ListsAFullRunInMetricInWholeKilowatts)
{
    heatInMetric();
    EXPECT_EQ(printed(), ExpectedReport("heating-run-printed-metric"));
    EXPECT_EQ(saved(), ExpectedReport("heating-run-saved-metric"));
}

TEST_F(HeatingReport, ShowsARefusedStateWithItsNegativeLoad)
{
    enterInEnglish();
    refuse(40.0F, 1.532F);
    EXPECT_EQ(printed(), ExpectedReport("heating-refused-printed-english"));
    EXPECT_EQ(saved(), ExpectedReport("heating-refused-saved-english"));
}

TEST_F(HeatingReport, ShowsARefusedStateWithItsNegativeLoadInMetric)
{
    enterInMetric();
    refuse(5.0F, 1.481F);
    EXPECT_EQ(printed(), ExpectedReport("heating-refused-printed-metric"));
    EXPECT_EQ(saved(), ExpectedReport("heating-refused-saved-metric"));
}

TEST_F(HeatingReport, LeavesTheValueOfALoadUnderHalfAUnitEmpty)
{
    InMetric();
    HeatingLoadSingle = 0.49F;
    EXPECT_EQ(saved(), ExpectedReport("heating-zeros-saved-metric"));
    HeatingLoadSingle = 12.6F;
    EXPECT_TRUE(saved().ends_with("\n Heating Load =             13             kW\n")) << saved();
}

TEST_F(HeatingReport, ReadsTheSnapshotsAndTheDividedLoadAlone)
{
    StatePoint.Tdb = 99.0F;
    AirVolume = 77.0F;
    HeatingLoadValue = 1234.5;
    EXPECT_EQ(printed(), ExpectedReport("heating-zeros-printed-english"));
}

TEST_F(HeatingReport, IsSaved)
{
    heatInEnglish();
    const QString path = saveInDialog("Save Heating Load Data to File");
    SaveHeating(form<AnyForm>());
    EXPECT_EQ(BytesOf(path), ExpectedReport("heating-run-saved-english"));
}

TEST_F(HeatingReport, IsPrintedThroughItsTemporaryFileInThePrintersFont)
{
    heatInMetric();
    const PrinterFont font{.name = "Arial", .size = 9, .bold = false};
    CurrentPrinter().setFont(font);
    dialogs.answer("PrintDialog", PrintToFile(file("heating.pdf")));
    PrintHeating(form<AnyForm>());
    EXPECT_EQ(BytesOf(base + "/tempdata/heating.txt"), ExpectedReport("heating-run-printed-metric"));
    EXPECT_EQ(CurrentPrinter().font().size, 9);
    EXPECT_NE(TextOf(file("heating.pdf")).find("Heating Load = 9 kW"), std::string::npos);
}

} // namespace
