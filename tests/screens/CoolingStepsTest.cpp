#include "reports/ReportFile.h"
#include "tests/platform/Dialogs.h"
#include "tests/screens/CoolingFixture.h"

#include <QAction>
#include <QFile>
#include <QTemporaryDir>

/// The steps from the entering air to the loads.
class CoolingSteps : public CoolingTest
{
protected:
    void SetUp() override
    {
        base = folder.path();
        ReportsBase = [] { return base.toStdString(); };
    }

    /// Saves the report by its menu entry and reads the file.
    std::string savedReport()
    {
        user.inDialog("SaveDialog", [this] {
            saveAs(folder.filePath("report.txt"))(static_cast<QDialog&>(*QApplication::activeModalWidget()));
        });
        user.choose("mnuSave");
        QFile file(folder.filePath("report.txt"));
        return file.open(QIODevice::ReadOnly) ? file.readAll().toStdString() : "(none)";
    }

    static void expectInReport(const std::string& report, const std::string& text)
    {
        EXPECT_NE(report.find(text), std::string::npos) << text << " is not in\n" << report;
    }

    QTemporaryDir folder;
    static inline QString base;
};

/// The total load of a wet coil, from the two saved states and the enthalpy of the condensate.
static double wetTotal(double condensateEnthalpy, double hoursFactor)
{
    const AirSnapshot& in = CoolingEnteringAir;
    const AirSnapshot& out = CoolingLeavingAir;
    const double moisture = static_cast<double>(in.W) - out.W;
    const double heat = static_cast<double>(in.h) - out.h - moisture * condensateEnthalpy;
    return hoursFactor * in.AirVolume / in.SpVol * heat;
}

TEST_F(CoolingSteps, SaveTheEnteringAirWithItsVolume)
{
    open();
    calculate("80", "txtRH", "50");
    saveEntering("1,250.5");
    expectButtons(false, false, true, false);
    EXPECT_EQ(user.focus(), "btnSetLA");
    EXPECT_EQ(user.text("Frame6"), "Verify Entering Air Conditions ... then click Set Leaving Air");
    EXPECT_EQ(user.text("Frame2"), "Enter Entering Air Dry Bulb Temperature:");

    const AirSnapshot& saved = CoolingEnteringAir;
    EXPECT_EQ(saved.AirVolume, 1250.5F);
    EXPECT_EQ(saved.Tdb, 80.0F);
    EXPECT_EQ(saved.P, 14.696F);
    EXPECT_EQ(saved.RH, 0.5F);
    EXPECT_EQ(saved.W, StatePoint.W.asSingle());
    EXPECT_EQ(saved.Grains, StatePoint.Grains.asSingle());
    EXPECT_EQ(saved.SpVol, StatePoint.SpVol.asSingle());
    EXPECT_EQ(saved.h, StatePoint.h);
    EXPECT_EQ(saved.Twb, StatePoint.Twb.asSingle());
    EXPECT_EQ(saved.Mu, StatePoint.Mu.asSingle());
    EXPECT_EQ(saved.Pw, StatePoint.Pw.asSingle());
    EXPECT_EQ(saved.Pws, StatePoint.Pws.asSingle());
    EXPECT_EQ(saved.Ws, StatePoint.Ws.asSingle());
    EXPECT_EQ(saved.td, 59.8F) << "rounded to a tenth";
    EXPECT_NE(StatePoint.td.asSingle(), 59.8F);
}

TEST_F(CoolingSteps, EndTheProgramOnAVolumeThatIsNoNumber)
{
    open();
    calculate("80", "txtRH", "50");
    EXPECT_EXIT(saveEntering("abc"), testing::ExitedWithCode(1),
                "message: Dunmoor: Run-time error '13':\nType mismatch");
}

TEST_F(CoolingSteps, ShowTheLeavingAirOfADryCoil)
{
    openWithEnteringAir();
    setLeaving("65.25");
    EXPECT_EQ(user.text("txtTdb"), "65.25") << "no picture";
    EXPECT_EQ(user.text("txtW"), "0.01093");
    EXPECT_EQ(user.text("txttd"), "59.8");
    EXPECT_EQ(user.text("txtP"), "14.696");
    EXPECT_EQ(user.text("Frame6"), "Cooling Coil Leaving Air Conditions:");
    EXPECT_EQ(user.text("Frame1"), "");
    EXPECT_EQ(user.text("Frame2"), "");
    expectButtons(false, false, false, true);
    EXPECT_EQ(user.focus(), "btnCalcLoad");
    EXPECT_EQ(HumiditySelector, "Grains") << "the last field that changed";

    EXPECT_EQ(LeavingAirAccepted, True16);
    EXPECT_EQ(LeavingWetBulbGiven, False16);
    EXPECT_EQ(CoolingLeavingAir.AirVolume, 1000.0F);
    EXPECT_EQ(CoolingLeavingAir.Tdb, 65.25F);
    EXPECT_EQ(CoolingLeavingAir.W, CoolingEnteringAir.W);
    EXPECT_EQ(CoolingLeavingAir.td, StatePoint.td.asSingle());
    EXPECT_NE(CoolingLeavingAir.td, 59.8F) << "not rounded";
    EXPECT_EQ(CoolingLeavingAir.h, StatePoint.h);
}

TEST_F(CoolingSteps, ShowTheLeavingAirOfAWetCoil)
{
    openWithEnteringAir();
    setLeaving("55", "54");
    EXPECT_EQ(user.text("txtTdb"), "55");
    EXPECT_EQ(user.text("txtTwb"), "54.0");
    EXPECT_EQ(user.text("txttd"), "53.4");
    EXPECT_EQ(user.text("txtW"), "0.00863");
    EXPECT_EQ(user.text("txtSpVol"), "13.155");
    EXPECT_EQ(user.text("txth"), "22.57");
    expectButtons(false, false, false, true);
    EXPECT_EQ(LeavingWetBulbGiven, True16);
    EXPECT_EQ(CoolingLeavingAir.Twb, 54.0F);
}

TEST_F(CoolingSteps, ChangeNothingWhereNoLeavingAirIsAccepted)
{
    openWithEnteringAir();
    inLeavingAir([this] { user.click("btnCancel"); });
    expectButtons(false, false, true, false);
    EXPECT_EQ(user.text("txtTdb"), "80");
    EXPECT_EQ(user.text("txtRH"), "50.0");
    EXPECT_EQ(user.text("Frame6"), "Verify Entering Air Conditions ... then click Set Leaving Air");
    setLeaving("80");
    expectButtons(false, false, true, false);
}

TEST_F(CoolingSteps, ShowThePressureInPaBesideKPaUntilTheNextCalculation)
{
    openWithEnteringAir(true);
    EXPECT_EQ(user.text("txtP"), "101.352");
    setLeaving("20");
    EXPECT_EQ(user.text("txtP"), "101352");
    EXPECT_EQ(user.text("lblP2"), " kPa");
    EXPECT_EQ(HumiditySelector, "Dew Point");
    EXPECT_EQ(user.text("txtGrains"), "");
    calculate("30", "txtRH", "50");
    EXPECT_EQ(user.text("txtP"), "101.352");
}

TEST_F(CoolingSteps, EndInTheLoadsOfADryCoil)
{
    openWithEnteringAir();
    setLeaving("65");
    EXPECT_EQ(readLoads(), (Texts{"1,000.0", "16,085.3", ".", "16,085.3"}));
    EXPECT_EQ(TotalLoad, SensibleLoad.asSingle());
    EXPECT_NE(LatentLoad.asDouble(), 0.0) << "what the rounding of the total left";
    EXPECT_LT(std::abs(LatentLoad.asDouble()), 0.001);
    EXPECT_EQ(user.window(), "CoolingLoad1");
    expectButtons(false, false, false, false);
    EXPECT_EQ(user.text("txtTdb"), "65");
}

TEST_F(CoolingSteps, EndInTheLoadsOfAWetCoil)
{
    openWithEnteringAir();
    setLeaving("55", "54");
    EXPECT_EQ(readLoads(), (Texts{"1,000.0", "27,111.", "9,985.8", "37,096.8"}));
}

TEST_F(CoolingSteps, EndInKilowattsInMetric)
{
    openWithEnteringAir(true);
    setLeaving("20");
    EXPECT_EQ(readLoads(), (Texts{"3,600.0", "11.8", ".", "11.8"}));
    calculate("30", "txtRH", "50");
    saveEntering("3600");
    setLeaving("12", "11.5");
    EXPECT_EQ(readLoads(), (Texts{"3,600.0", "21.7", "13.6", "35.3"}));
}

TEST_F(CoolingSteps, TakeTheWetFormulaAboveTheDewPointWhereAWetBulbWasGiven)
{
    openWithEnteringAir();
    setLeaving("65", "60");
    EXPECT_EQ(readLoads(), (Texts{"1,000.0", "16,098.3", "4,587.4", "20,685.7"}));
}

TEST_F(CoolingSteps, GoOnWithAWetBulbAboveTheDryBulb)
{
    openWithEnteringAir();
    setLeaving("60", "66");
    EXPECT_TRUE(user.messages.empty());
    EXPECT_GT(CoolingLeavingAir.RH, 1.0F);
    EXPECT_EQ(readLoads(), (Texts{"1,000.0", "21,478.9", "-19,292.9", "2,185.9"}));
}

TEST_F(CoolingSteps, TakeTheCondensateBandThatDoesNotHoldTheWetBulb)
{
    openWithEnteringAir();
    setLeaving("33", "32.5");
    EXPECT_EQ(readLoads(), (Texts{"1,000.0", "52,245.9", "31,107.3", "83,353.2"}));
    EXPECT_NEAR(TotalLoad, wetTotal(32.5 - 31.97, 60.0), 0.05);

    calculate("80", "txtRH", "50");
    saveEntering();
    setLeaving("34", "33.5");
    EXPECT_EQ(readLoads(), (Texts{"1,000.0", "51,079.", "30,456.4", "81,535.4"}));
    EXPECT_NEAR(TotalLoad, wetTotal(33.5 - 31.98, 60.0), 0.05);
}

TEST_F(CoolingSteps, TakeTheOtherMetricCondensateBandJustAboveFreezing)
{
    open(true);
    calculate("30", "txtRH", "50");
    saveEntering("36000000"); // enough to distinguish the bands
    setLeaving("1", "0.5");
    readLoads();
    EXPECT_NEAR(TotalLoad, wetTotal(2.175, 1.0 / 3600.0), 0.2);
    EXPECT_GT(std::abs(TotalLoad - wetTotal(0.06 + 4.22 * 0.5, 1.0 / 3600.0)), 0.4);
}

TEST_F(CoolingSteps, ShowNoLoadsForNoVolume)
{
    open();
    calculate("80", "txtRH", "50");
    cancelVolume();
    EXPECT_EQ(CoolingEnteringAir.AirVolume, 0.0F);
    expectButtons(false, false, true, false);
    setLeaving("55", "54");
    EXPECT_EQ(readLoads(), (Texts{".0", ".", ".", "."}));
}

TEST_F(CoolingSteps, CompareWithTheDewPointRoundedToATenth)
{
    open();
    calculate("80", "txttd", "54.96");
    saveEntering();
    EXPECT_EQ(CoolingEnteringAir.td, 55.0F);
    setLeaving("54.9");
    expectButtons(false, false, true, false);
    setLeaving("55");
    expectButtons(false, false, false, true);
    EXPECT_EQ(LeavingWetBulbGiven, False16);
    EXPECT_EQ(readLoads()[2], ".");
}

TEST_F(CoolingSteps, GoOnWithTheOldResultsWhereTheLeavingAirIsRefused)
{
    open();
    calculate("80", "txttd", "55.04"); // saved as 55.0
    const std::string oldVolume = user.text("txtSpVol");
    saveEntering();
    setLeaving("55");
    EXPECT_EQ(user.messages, (std::vector<Message>{{"Humidity Ratio Input is High, Try Again!", "Dunmoor"}}));
    EXPECT_EQ(user.text("txtTdb"), "55");
    EXPECT_EQ(user.text("txtSpVol"), oldVolume);
    expectButtons(false, false, false, true);

    const AirSnapshot& entering = CoolingEnteringAir;
    const AirSnapshot& leaving = CoolingLeavingAir;
    EXPECT_EQ(leaving.Tdb, 55.0F);
    EXPECT_GT(leaving.RH, 1.0F);
    EXPECT_GT(leaving.Mu, 1.0F);
    EXPECT_LT(leaving.Pws, entering.Pws);
    EXPECT_EQ(leaving.SpVol, entering.SpVol);
    EXPECT_EQ(leaving.h, entering.h);
    EXPECT_EQ(leaving.Grains, entering.Grains);
    EXPECT_EQ(leaving.Twb, entering.Twb);
    EXPECT_EQ(leaving.td, 55.04F);
    EXPECT_EQ(user.text("txtTwb"), FormatNumber(entering.Twb, "#0.0"));
}

TEST_F(CoolingSteps, EndTheProgramWhereNoAirWasEverSolved)
{
    open();
    calculate("70", "txtW", "0.05");
    saveEntering();
    setLeaving("50");
    EXPECT_EQ(user.messages.size(), 2U) << "both solves are refused, and neither stops the sequence";
    EXPECT_EXIT(user.click("btnCalcLoad"), testing::ExitedWithCode(1),
                "message: Dunmoor: Run-time error '11':\nDivision by zero");
}

TEST_F(CoolingSteps, WorkOnTheSavedAirWhateverTheFieldsShow)
{
    openWithEnteringAir();
    setLeaving("65");
    user.type("txtTdb", "70");
    expectButtons(false, false, false, true);
    user.type("txtRH", "20");
    expectButtons(true, false, false, true);
    EXPECT_EQ(readLoads(), (Texts{"1,000.0", "16,085.3", ".", "16,085.3"}));
    expectButtons(true, false, false, false);
    EXPECT_EQ(user.text("txtTdb"), "70");
}

TEST_F(CoolingSteps, StartOverByAClickOnAHumidityField)
{
    openWithEnteringAir();
    setLeaving("65");
    user.click("txtRH");
    expectButtons(true, false, false, false);
    EXPECT_EQ(CoolingLeavingAir.Tdb, 65.0F);
    EXPECT_EQ(user.text("Frame6"), "Cooling Coil Leaving Air Conditions:");
    calculate("90", "txtRH", "40");
    EXPECT_EQ(user.text("Frame6"), "Cooling Coil Leaving Air Conditions:");
    expectButtons(false, true, false, false);
    saveEntering();
    EXPECT_EQ(user.text("Frame6"), "Verify Entering Air Conditions ... then click Set Leaving Air");
    EXPECT_EQ(user.text("Frame1"), "");
    EXPECT_EQ(user.text("Frame2"), "");
    expectButtons(false, false, true, false);
}

TEST_F(CoolingSteps, TurnTheLoadOffWhereACalculationBegins)
{
    openWithEnteringAir();
    setLeaving("65");
    user.type("txtRH", "50");
    user.click("btnCALCULATE");
    expectButtons(false, true, false, false);
}

TEST_F(CoolingSteps, RepeatTheOldLeavingAirWhereItsDialogIsClosedByTheBox)
{
    openWithEnteringAir();
    setLeaving("55", "54");
    calculate("90", "txtRH", "40");
    saveEntering("2000");
    inLeavingAir([this] { user.closeWindow(); });
    EXPECT_EQ(user.text("txtTdb"), "55");
    EXPECT_EQ(user.text("txtTwb"), "54.0");
    EXPECT_EQ(CoolingLeavingAir.AirVolume, 2000.0F);
    expectButtons(false, false, false, true);
}

TEST_F(CoolingSteps, ForgetThatALeavingAirWasAcceptedWhereTheScreenOpensAnew)
{
    openWithEnteringAir();
    setLeaving("55", "54");
    user.choose("mnuExit");
    EXPECT_EQ(LeavingAirAccepted, True16);
    user.click("btnCooling");
    EXPECT_EQ(LeavingAirAccepted, False16);
    EXPECT_EQ(LeavingWetBulbGiven, True16);
    calculate("90", "txtRH", "40");
    saveEntering();
    inLeavingAir([this] { user.closeWindow(); });
    EXPECT_EQ(user.text("txtTdb"), "90");
    expectButtons(false, false, true, false);
}

TEST_F(CoolingSteps, StartBlankWhereTheScreenOpensAnewAndKeepWhatWasSaved)
{
    openWithEnteringAir();
    setLeaving("65");
    readLoads();
    user.choose("mnuMain1");
    user.click("btnCooling");
    expectButtons(false, false, false, false);
    for (const std::string& field : humidityFields)
        EXPECT_EQ(user.text(field), "");
    EXPECT_EQ(user.text("Frame6"), "");
    EXPECT_EQ(user.text("Frame2"), "Enter Entering Air Dry Bulb Temperature:");
    EXPECT_NE(user.text("Frame1"), "");
    EXPECT_EQ(StatePoint.Tdb, 65.0F);
    EXPECT_EQ(CoolingEnteringAir.Tdb, 80.0F);
    EXPECT_EQ(CoolingLeavingAir.Tdb, 65.0F);
    expectInReport(savedReport(), "16,085.3");
}

TEST_F(CoolingSteps, CanBeSavedAsAReportBeforeAnythingWasCalculated)
{
    open();
    const std::string report = savedReport();
    for (const char* section : {"Cooling Entering Air Properties", "Cooling Leaving Air Properties",
                                "Cooling Load Summary", "Total Cooling = "})
        expectInReport(report, section);
}

TEST_F(CoolingSteps, PairNewEnteringAirWithOldLoadsInAReportOfAnUnfinishedPass)
{
    openWithEnteringAir();
    setLeaving("65");
    readLoads();
    calculate("91", "txtRH", "40");
    saveEntering("2345");
    const std::string report = savedReport();
    for (const char* text : {"91.0", "2,345.0", "65.0", "16,085.3"})
        expectInReport(report, text);
}
