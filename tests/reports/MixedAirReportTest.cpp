#include "reports/Reports.h"
#include "tests/platform/Pdf.h"
#include "tests/reports/Reports.h"

using namespace forms;

namespace {

class MixedAirReport : public ReportCommandTest
{
protected:
    static AirSnapshot air(Single volume, Single tdb, Single twb, Single td, Single rh, Single w,
                           Single grains, Single spVol, Single h)
    {
        AirSnapshot snapshot;
        snapshot.AirVolume = volume;
        snapshot.Tdb = tdb;
        snapshot.Twb = twb;
        snapshot.td = td;
        snapshot.RH = rh;
        snapshot.W = w;
        snapshot.Grains = grains;
        snapshot.SpVol = spVol;
        snapshot.h = h;
        return snapshot;
    }

    static void mixInEnglish()
    {
        MixedOutsideAir = air(1234.5F, 95.0F, 75.0625F, -5.25F, 0.395F, 0.0140123F, 98.07F, 14.3F, 38.25F);
        MixedReturnAir = air(10000.0F, 75.0F, 62.5F, 55.0625F, 1.0F, 0.0092F, 64.0F, 14.0F, 28.0F);
        MixedResultAir = air(1234567.75F, 80.0F, 65.9F, 58.5F, 0.001F, 0.0001F, 0.7F, 13.987F, 30.63F);
    }
};

TEST_F(MixedAirReport, ShowsZerosBeforeAnyMix)
{
    EXPECT_EQ(TextOfReport(WriteMixedAirReport), ExpectedReport("mixed-air-zeros"));
}

TEST_F(MixedAirReport, ListsTheThreeAirsInEnglish)
{
    mixInEnglish();
    EXPECT_EQ(TextOfReport(WriteMixedAirReport), ExpectedReport("mixed-air-english"));
}

TEST_F(MixedAirReport, ListsTheThreeAirsInMetricWithoutGrains)
{
    InMetric();
    MixedOutsideAir = air(2100.0F, 35.0F, 24.0F, 19.6F, 0.401F, 0.0142346F, 99.6F, 0.893F, 71.67F);
    MixedReturnAir = air(0.0F, -10.0F, -10.5F, -12.0F, 0.0F, 0.0F, 0.0F, 0.0F, 0.0F);
    MixedResultAir = air(5.0e6F, 24.0F, 17.1F, 12.9F, 0.5F, 0.0093F, 65.1F, 0.855F, 47.8F);
    EXPECT_EQ(TextOfReport(WriteMixedAirReport), ExpectedReport("mixed-air-metric"));
}

TEST_F(MixedAirReport, ReadsTheSnapshotsAlone)
{
    StatePoint.Tdb = 99.0F;
    AirVolume = 77.0F;
    EXPECT_EQ(TextOfReport(WriteMixedAirReport), ExpectedReport("mixed-air-zeros"));
}

TEST_F(MixedAirReport, IsSaved)
{
    mixInEnglish();
    const QString path = saveInDialog("Save Data to File");
    SaveMixedAir(form<AnyForm>());
    EXPECT_EQ(BytesOf(path), ExpectedReport("mixed-air-english"));
}

TEST_F(MixedAirReport, IsPrintedThroughItsTemporaryFile)
{
    mixInEnglish();
    dialogs.answer("PrintDialog", PrintToFile(file("mix.pdf")));
    PrintMixedAir(form<AnyForm>());
    EXPECT_EQ(BytesOf(base + "/tempdata/mixedair.txt"), ExpectedReport("mixed-air-english"));
    expectWords(TextOf(file("mix.pdf")),
                {"Outside Air Properties", "Return Air Properties", "Mixed Air Properties",
                 "Air Flow Rate = 1,234,568 cfm", "Enthalpy = 28. Btu/lb."});
}

TEST_F(MixedAirReport, IsPrintedBeforeAnyMixWithItsZeros)
{
    dialogs.answer("PrintDialog", PrintToFile(file("mix.pdf")));
    PrintMixedAir(form<AnyForm>());
    EXPECT_EQ(BytesOf(base + "/tempdata/mixedair.txt"), ExpectedReport("mixed-air-zeros"));
    EXPECT_EQ(PagesOf(file("mix.pdf")), 1);
}

TEST_F(MixedAirReport, EndsSilentlyWhereTheHumidityRatioOverflows)
{
    InMetric();
    MixedReturnAir.W = 3.0e38F;
    dialogs.answer("SaveDialog", SaveAs(file("mix")));
    SaveMixedAir(form<AnyForm>());
    const std::string text = BytesOf(file("mix"));
    EXPECT_TRUE(text.ends_with(" Relative Humidity =        0.0%\n")) << text;
    EXPECT_EQ(std::count(text.begin(), text.end(), '\n'), 15 + 12);
    EXPECT_TRUE(ReportFile.isOpen());
}

} // namespace
