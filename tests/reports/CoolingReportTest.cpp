#include "core/CoilLoads.h"
#include "platform/Printer.h"
#include "reports/Reports.h"
#include "tests/platform/Pdf.h"
#include "tests/reports/Reports.h"

using namespace forms;

namespace {

class CoolingReport : public ReportCommandTest
{
protected:
    static std::string report() { return TextOfReport(WriteCoolingReport); }

    static void saveEnteringAir(const TaggedNumber& volume)
    {
        CoolingEnteringAir = AirSnapshot::of(StatePoint, volume);
        CoolingEnteringAir.td = RoundToScale(StatePoint.td, 10);
    }

    /// Solves and saves entering air, then sets a leaving temperature at which it is above saturation.
    static void refuseLeavingAir(Single tdb, Single p, const TaggedNumber& volume, Single leavingTdb)
    {
        ShowCoreMessage = [](const std::string&) {};
        StatePoint.Tdb = tdb;
        StatePoint.P = p;
        StatePoint.RH = 50.0F;
        SolveFromRH();
        saveEnteringAir(volume);
        StatePoint.Tdb = leavingTdb;
        SolveFromW();
        CoolingLeavingAir = AirSnapshot::of(StatePoint, volume);
    }

    static void coolWetInEnglish()
    {
        CoolingEnteringAir = {.AirVolume = 2000.0F,
                              .Grains = 80.5F,
                              .RH = 0.515F,
                              .SpVol = 13.75F,
                              .h = 31.5F,
                              .W = 0.0115F,
                              .td = 61.0F,
                              .Twb = 67.25F,
                              .Tdb = 80.0F};
        CoolingLeavingAir = {.Grains = 52.5F,
                             .RH = 0.8125F,
                             .SpVol = 13.25F,
                             .h = 21.25F,
                             .W = 0.0075F,
                             .td = 41.125F,
                             .Twb = 48.0F,
                             .Tdb = 55.0F};
        LeavingWetBulbGiven = True16;
        CalculateCoolingLoads();
    }

    static void coolWetInMetric()
    {
        InMetric();
        CoolingEnteringAir = {.AirVolume = 3400.0F,
                              .RH = 0.505F,
                              .SpVol = 0.85F,
                              .h = 60.0F,
                              .W = 0.0125F,
                              .td = 16.9F,
                              .Twb = 20.5F,
                              .Tdb = 28.0F};
        CoolingLeavingAir = {
            .RH = 0.9F, .SpVol = 0.83F, .h = 34.0F, .W = 0.0085F, .td = 11.2F, .Twb = 12.0F, .Tdb = 13.0F};
        LeavingWetBulbGiven = True16;
        CalculateCoolingLoads();
    }
};

TEST_F(CoolingReport, ShowsZerosBeforeAnythingIsCalculated)
{
    EXPECT_EQ(report(), ExpectedReport("cooling-zeros-english"));
}

TEST_F(CoolingReport, ShowsZerosBeforeAnythingIsCalculatedInMetric)
{
    InMetric();
    EXPECT_EQ(report(), ExpectedReport("cooling-zeros-metric"));
}

TEST_F(CoolingReport, ListsAWetCoil)
{
    coolWetInEnglish();
    EXPECT_EQ(report(), ExpectedReport("cooling-wet-english"));
}

TEST_F(CoolingReport, ListsAWetCoilInMetric)
{
    coolWetInMetric();
    EXPECT_EQ(report(), ExpectedReport("cooling-wet-metric"));
}

// The latent load is the rounding error of the total. The report doesn't show it.
TEST_F(CoolingReport, ListsADryCoil)
{
    CoolingEnteringAir = {.AirVolume = 1000.0F,
                          .Grains = 36.4F,
                          .RH = 0.24F,
                          .SpVol = 14.0F,
                          .h = 24.875F,
                          .W = 0.0052F,
                          .td = 40.0F,
                          .Twb = 60.0F,
                          .Tdb = 80.0F};
    CoolingLeavingAir = {.Grains = 36.4F,
                         .RH = 0.475F,
                         .SpVol = 13.5F,
                         .h = 20.0F,
                         .W = 0.0052F,
                         .td = 40.0F,
                         .Twb = 50.5F,
                         .Tdb = 60.0F};
    CalculateCoolingLoads();
    EXPECT_NE(LatentLoad.asDouble(), 0.0);
    EXPECT_EQ(report(), ExpectedReport("cooling-dry-english"));
}

TEST_F(CoolingReport, ListsADryCoilInMetric)
{
    InMetric();
    CoolingEnteringAir = {.AirVolume = 3600.0F,
                          .RH = 0.33F,
                          .SpVol = 0.86F,
                          .h = 45.65F,
                          .W = 0.00725F,
                          .td = 9.3F,
                          .Twb = 18.0F,
                          .Tdb = 27.0F};
    CoolingLeavingAir = {
        .RH = 0.685F, .SpVol = 0.84F, .h = 33.42F, .W = 0.00725F, .td = 9.3F, .Twb = 12.1F, .Tdb = 15.0F};
    CalculateCoolingLoads();
    EXPECT_NE(LatentLoad.asDouble(), 0.0);
    EXPECT_EQ(report(), ExpectedReport("cooling-dry-metric"));
}

// The leaving air has the new temperature and relative humidity; its other properties are from the previous
// state.
TEST_F(CoolingReport, ShowsARefusedStateAsItStands)
{
    refuseLeavingAir(70.0F, 14.696F, 1500.0F, 45.0F);
    EXPECT_EQ(report(), ExpectedReport("cooling-refused-english"));
}

TEST_F(CoolingReport, ShowsARefusedStateAsItStandsInMetric)
{
    InMetric();
    refuseLeavingAir(20.0F, 101352.0F, 2500.0F, 5.0F);
    EXPECT_EQ(report(), ExpectedReport("cooling-refused-metric"));
}

TEST_F(CoolingReport, PairsANewEnteringAirWithTheLoadsOfThePassBefore)
{
    coolWetInEnglish();
    CoolingEnteringAir = {.AirVolume = 5000.25F,
                          .Grains = 84.7F,
                          .RH = 0.4625F,
                          .SpVol = 14.01F,
                          .h = 33.9F,
                          .W = 0.0121F,
                          .td = 62.4F,
                          .Twb = 70.0F,
                          .Tdb = 85.5F};
    EXPECT_EQ(report(), ExpectedReport("cooling-second-pass-english"));
}

TEST_F(CoolingReport, PairsANewEnteringAirWithTheLoadsOfThePassBeforeInMetric)
{
    coolWetInMetric();
    CoolingEnteringAir = {.AirVolume = 12345.5F,
                          .RH = 0.4375F,
                          .SpVol = 0.88F,
                          .h = 64.3F,
                          .W = 0.0128F,
                          .td = 17.8F,
                          .Twb = 22.0F,
                          .Tdb = 31.5F};
    EXPECT_EQ(report(), ExpectedReport("cooling-second-pass-metric"));
}

TEST_F(CoolingReport, ReadsTheSnapshotsAndTheLoadsAlone)
{
    StatePoint.Tdb = 99.0F;
    AirVolume = 77.0F;
    EXPECT_EQ(report(), ExpectedReport("cooling-zeros-english"));
}

TEST_F(CoolingReport, IsSaved)
{
    coolWetInEnglish();
    const QString path = saveInDialog("Save Cooling Load Data to File");
    SaveCooling(form<AnyForm>());
    EXPECT_EQ(BytesOf(path), ExpectedReport("cooling-wet-english"));
}

TEST_F(CoolingReport, IsPrintedThroughItsTemporaryFileInBoldArial)
{
    coolWetInMetric();
    dialogs.answer("PrintDialog", PrintToFile(file("cooling.pdf")));
    PrintCooling(form<AnyForm>());
    EXPECT_EQ(BytesOf(base + "/tempdata/cooling.txt"), ExpectedReport("cooling-wet-metric"));
    EXPECT_EQ(CurrentPrinter().font().name, "Arial");
    EXPECT_EQ(CurrentPrinter().font().size, 14);
    EXPECT_TRUE(CurrentPrinter().font().bold);
    expectWords(TextOf(file("cooling.pdf")),
                {"Cooling Entering Air Properties", "Cooling Leaving Air Properties", "Cooling Load Summary",
                 "Total Cooling = 28.7 kW"});
}

} // namespace
