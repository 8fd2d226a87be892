// The leaving air dialog of the heating load calculator and the resulting load.

#include "tests/screens/HeatingFixture.h"

using namespace forms;

using HeatingLeavingDialog = HeatingTest;

TEST_F(HeatingLeavingDialog, AsksForTheLeavingTemperature)
{
    open();
    saveWorkedAir();
    inLeavingDialog([this] {
        EXPECT_EQ(user.title(), "Leaving Air Temp");
        expectCaptions({{"Label1", "Enter the desired Heating Coil"},
                        {"Label3", " Leaving Air Temperature:"},
                        {"txtHeatLAT", ""},
                        {"Label2", "degrees"},
                        {"btnOK", "OK"}});
        EXPECT_EQ(back("txtHeatLAT"), QColor(255, 255, 128));
        EXPECT_EQ(focusAtOpening(), "txtHeatLAT");
        expectAQuarterDownInTheMiddle();
        user.closeWindow();
    });
}

TEST_F(HeatingLeavingDialog, AsksForDegreesInMetricToo)
{
    open(true);
    saveWorkedAir();
    inLeavingDialog([this] {
        EXPECT_EQ(user.text("Label2"), "degrees");
        user.closeWindow();
    });
}

TEST_F(HeatingLeavingDialog, ComesUpEmptyEachTime)
{
    open();
    saveWorkedAir();
    inputLeaving("90");
    EXPECT_FALSE(isLoaded<HeatingLoad2>());
    inLeavingDialog([this] {
        EXPECT_EQ(user.text("txtHeatLAT"), "");
        user.closeWindow();
    });
    EXPECT_FALSE(isLoaded<HeatingLoad2>());
}

TEST_F(HeatingLeavingDialog, GivesTheLoadOfTheWorkedFigures)
{
    openForWorkedFigures();
    saveWorkedAir();
    EXPECT_EQ(user.text("txtSpVol"), "13.500");
    EXPECT_EQ(user.text("txth"), "25.54");
    inputLeaving("90");
    EXPECT_EQ(user.text("txtHeatLoad"), "21,649");
    EXPECT_EQ(user.text("lblHeatLoad"), " BTU Heating Load ");
    EXPECT_EQ(HeatingLoadValue.kind(), NumberKind::Double);
    EXPECT_EQ(HeatingLoadSingle, HeatingLoadValue.asSingle());
    EXPECT_NEAR(HeatingLeavingAir.h, 30.40768, 1e-4);
}

TEST_F(HeatingLeavingDialog, GivesTheLoadOfTheWorkedFiguresInMetric)
{
    openForMetricWorkedFigures();
    saveWorkedAir();
    EXPECT_EQ(user.text("txtSpVol"), "0.840");
    inputLeaving("35");
    EXPECT_EQ(user.text("txtHeatLoad"), "8.55");
    EXPECT_EQ(user.text("lblHeatLoad"), " kW Heating Load ");
    EXPECT_EQ(HeatingLoadSingle, HeatingLoadValue.asSingle());
    EXPECT_NEAR(HeatingLoadValue.asDouble(), 8.5543, 1e-3) << "divided in place";
}

TEST_F(HeatingLeavingDialog, ShowsTheLeavingTemperatureAndRatioBesideTheEnteringItems)
{
    open();
    saveWorkedAir();
    const char* const keptFields[] = {"txtTwb", "txtRH", "txttd", "txtGrains", "txth", "txtSpVol"};
    std::vector<std::string> kept;
    for (const char* field : keptFields)
        kept.push_back(user.text(field));
    inputLeaving("90");
    EXPECT_EQ(user.text("txtTdb"), "90");
    EXPECT_EQ(user.text("txtW"), "0.008");
    for (std::size_t i = 0; i < kept.size(); ++i)
        EXPECT_EQ(user.text(keptFields[i]), kept[i]) << keptFields[i];
    EXPECT_EQ(HumiditySelector, "W");
    expectButtons(true, true);
}

TEST_F(HeatingLeavingDialog, FreezesTheLeavingAirAtTheEnteringRatio)
{
    open();
    calculate("70", "txtRH", "50");
    saveEntering("1000");
    inputLeaving("90");
    const AirSnapshot& leaving = HeatingLeavingAir;
    EXPECT_EQ(leaving.Tdb, 90.0F);
    EXPECT_EQ(leaving.W, HeatingEnteringAir.W);
    EXPECT_EQ(leaving.P, HeatingEnteringAir.P);
    EXPECT_EQ(leaving.AirVolume, 1000.0F);
    EXPECT_LT(leaving.RH, HeatingEnteringAir.RH);
    EXPECT_GT(leaving.h, HeatingEnteringAir.h);
    EXPECT_EQ(leaving.h, StatePoint.h);
    EXPECT_EQ(leaving.Twb, StatePoint.Twb.asSingle());
}

TEST_F(HeatingLeavingDialog, IsFollowedByTheLeavingPropertiesAtAClickOnCalculate)
{
    open();
    saveWorkedAir();
    inputLeaving("90");
    user.click("btnCALCULATE");
    expectCaptions({{"txtTdb", "90"},
                    {"txtW", "0.00800"},
                    {"txtTwb", FormatNumber(HeatingLeavingAir.Twb, "#0.0")},
                    {"txtRH", FormatNumber(TaggedNumber(HeatingLeavingAir.RH) * 100, "#0.0")},
                    {"txth", "30.41"},
                    {"txtSpVol", FormatNumber(HeatingLeavingAir.SpVol, "#0.000")},
                    {"lblW2", " lb. water/lb. dry air"}});
    EXPECT_TRUE(user.messages.empty());
}

TEST_F(HeatingLeavingDialog, IsFollowedByAClippedRatioAtAClickOnCalculateInMetric)
{
    open(true);
    saveWorkedAir();
    inputLeaving("35");
    EXPECT_EQ(user.text("txtW"), "0.008") << "kg/kg, which the click reads as g/kg";
    user.click("btnCALCULATE");
    expectWarning("lblW2", " W clipped at 0.00001");
}

TEST_F(HeatingLeavingDialog, IsFollowedByAThousandthOfALargeRatioInMetric)
{
    open(true);
    calculate("30", "txtW", "20");
    saveEntering("1700");
    inputLeaving("35");
    user.click("btnCALCULATE");
    EXPECT_EQ(user.text("lblW2"), " g moisture/kg dry air") << "0.00002 kg/kg isn't clipped";
    EXPECT_EQ(user.text("txtW"), "0.02");
}

TEST_F(HeatingLeavingDialog, StartsFromTheSavedEnteringAirEachTime)
{
    openForWorkedFigures();
    saveWorkedAir();
    inputLeaving("90");
    inputLeaving("90");
    EXPECT_EQ(user.text("txtHeatLoad"), "21,649");
    inputLeaving("110");
    EXPECT_EQ(user.text("txtHeatLoad"), "43,298");
}

TEST_F(HeatingLeavingDialog, ShowsCoolingAsANegativeLoadWithoutAMessage)
{
    openForWorkedFigures();
    saveWorkedAir();
    inputLeaving("65");
    EXPECT_EQ(user.text("txtHeatLoad"), "-5,412");
    EXPECT_TRUE(user.messages.empty());
}

TEST_F(HeatingLeavingDialog, LeavesTheLoadEmptyWhereNothingIsHeated)
{
    open();
    saveWorkedAir();
    inputLeaving("70");
    EXPECT_EQ(user.text("txtHeatLoad"), "");
    EXPECT_EQ(user.text("lblHeatLoad"), " BTU Heating Load ");
    saveEntering("0.05");
    inputLeaving("90"); // about 1 Btu/hr
    EXPECT_EQ(user.text("txtHeatLoad"), "1");
}

TEST_F(HeatingLeavingDialog, LeavesALoadUnderHalfABtuEmpty)
{
    open();
    calculate("70", "txtW", "0.008");
    saveEntering("0.02");
    inputLeaving("90");
    EXPECT_GT(HeatingLoadSingle, 0.4F);
    EXPECT_EQ(user.text("txtHeatLoad"), "");
}

TEST_F(HeatingLeavingDialog, ShowsALonePointWhereNothingIsHeatedInMetric)
{
    open(true);
    saveWorkedAir();
    inputLeaving("20");
    EXPECT_EQ(user.text("txtHeatLoad"), ".");
    cancelEntering();
    inputLeaving("35");
    EXPECT_EQ(user.text("txtHeatLoad"), ".");
    EXPECT_EQ(user.text("txtAirVolume"), "0");
}

TEST_F(HeatingLeavingDialog, ReadsABlankAsZeroDegrees)
{
    open();
    calculate("40", "txtRH", "5");
    saveEntering("1000");
    inputLeaving("");
    EXPECT_EQ(user.text("txtTdb"), "0");
    EXPECT_EQ(HeatingLeavingAir.Tdb, 0.0F);
    EXPECT_EQ(user.text("txtHeatLoad").front(), '-');
    EXPECT_TRUE(user.messages.empty());
}

TEST_F(HeatingLeavingDialog, TakesTemperaturesOutsideThePanelsRange)
{
    open();
    saveWorkedAir();
    inputLeaving("200");
    EXPECT_EQ(HeatingLeavingAir.Tdb, 200.0F);
    EXPECT_NE(user.text("txtHeatLoad"), "");
    EXPECT_TRUE(user.messages.empty());
}

TEST_F(HeatingLeavingDialog, GoesOnBelowTheDewPointAfterTheMessage)
{
    open();
    calculate("70", "txtRH", "50");
    saveEntering("1000");
    inputLeaving("40");
    EXPECT_EQ(user.messages, std::vector{refusedRatio});
    const AirSnapshot& entering = HeatingEnteringAir;
    const AirSnapshot& leaving = HeatingLeavingAir;
    EXPECT_EQ(leaving.Tdb, 40.0F);
    EXPECT_EQ(leaving.W, entering.W);
    EXPECT_GT(leaving.RH, 1.0F);
    EXPECT_EQ(leaving.SpVol, entering.SpVol) << "the previous state's";
    EXPECT_EQ(leaving.h, entering.h);
    EXPECT_EQ(leaving.td, entering.td);
    EXPECT_EQ(leaving.Twb, entering.Twb);
    EXPECT_EQ(leaving.Grains, entering.Grains);
    EXPECT_EQ(user.text("txtHeatLoad").front(), '-');
    EXPECT_EQ(user.text("txtTdb"), "40");
}

TEST_F(HeatingLeavingDialog, ComputesNoNewLoadByItsCloseBoxButSavesTheStateInHand)
{
    openForWorkedFigures();
    saveWorkedAir();
    inputLeaving("90");
    calculate("60", "txtRH", "50");
    closeLeavingByItsBox();
    EXPECT_FALSE(isLoaded<HeatingLoad2>());
    EXPECT_EQ(user.text("txtHeatLoad"), "21,649");
    EXPECT_EQ(user.text("txtTdb"), "60");
    EXPECT_EQ(HeatingLeavingAir.Tdb, 60.0F);
    EXPECT_EQ(HeatingLeavingAir.W, StatePoint.W.asSingle());
    expectButtons(false, true);
}

TEST_F(HeatingLeavingDialog, DividesTheLoadOnceMoreByItsCloseBoxInMetric)
{
    openForMetricWorkedFigures();
    saveWorkedAir();
    saveEntering("7154.6");
    inputLeaving("35");
    EXPECT_EQ(user.text("txtHeatLoad"), "36.");
    closeLeavingByItsBox();
    EXPECT_EQ(user.text("txtHeatLoad"), ".01");
    EXPECT_NEAR(HeatingLoadSingle, 0.01F, 1e-6F);
    closeLeavingByItsBox();
    EXPECT_EQ(user.text("txtHeatLoad"), ".");
}

TEST_F(HeatingLeavingDialog, FillsABlankDryBulbAndWetBulbWithZeros)
{
    open();
    saveWorkedAir();
    user.click("txtTdb");
    user.type("txtTwb", "");
    user.type("txtRH", "");
    std::string tdb;
    std::string twb;
    inLeavingDialog([&] {
        tdb = User::findWindow("HeatingLoad1")->findChild<QLineEdit*>("txtTdb")->text().toStdString();
        twb = User::findWindow("HeatingLoad1")->findChild<QLineEdit*>("txtTwb")->text().toStdString();
        user.closeWindow();
    });
    EXPECT_EQ(tdb, "0");
    EXPECT_EQ(twb, "0");
    EXPECT_EQ(user.text("txtRH"), "") << "the other items stay blank";
    EXPECT_EQ(HumiditySelector, "Wetbulb");
    expectButtons(true, true);
}

TEST_F(HeatingLeavingDialog, SavesNoLeavingAirWhereTheRatioIsBlank)
{
    open();
    saveWorkedAir();
    inputLeaving("90");
    calculate("60", "txtRH", "50");
    user.type("txtW", "");
    closeLeavingByItsBox();
    EXPECT_EQ(HeatingLeavingAir.Tdb, 90.0F);
    EXPECT_EQ(user.text("txtW"), "");
}

TEST_F(HeatingLeavingDialog, EndsTheProgramWhereNoEnteringAirWasSaved)
{
    open();
    calculate("70", "txtRH", "50");
    EXPECT_EXIT(inputLeaving("90"), testing::ExitedWithCode(1),
                "message: Dunmoor: Run-time error '11':\nDivision by zero");
    EXPECT_EXIT(inputLeaving("abc"), testing::ExitedWithCode(1), "Run-time error '11'")
        << "the division comes first";
}

TEST_F(HeatingLeavingDialog, EndsTheProgramInMetricTooWhereNoEnteringAirWasSaved)
{
    open(true);
    calculate("20", "txtRH", "50");
    EXPECT_EXIT(inputLeaving("35"), testing::ExitedWithCode(1), "Run-time error '11':\nDivision by zero");
}

TEST_F(HeatingLeavingDialog, EndsTheProgramOnATemperatureThatIsNoNumber)
{
    open();
    saveWorkedAir();
    EXPECT_EXIT(inputLeaving("abc"), testing::ExitedWithCode(1),
                "message: Dunmoor: Run-time error '13':\nType mismatch");
}

TEST_F(HeatingLeavingDialog, EndsTheProgramBeyondTheSaturationCurves)
{
    open();
    saveWorkedAir();
    const auto division = "message: Dunmoor: Run-time error '11':\nDivision by zero";
    EXPECT_EXIT(inputLeaving("400"), testing::ExitedWithCode(1), division);
    EXPECT_EXIT(inputLeaving("392"), testing::ExitedWithCode(1), division);
    EXPECT_EXIT(inputLeaving("-149"), testing::ExitedWithCode(1), division);
    inputLeaving("391");
    EXPECT_EQ(HeatingLeavingAir.Tdb, 391.0F);
    inputLeaving("-148");
    EXPECT_EQ(HeatingLeavingAir.Tdb, -148.0F);
}

TEST_F(HeatingLeavingDialog, EndsTheProgramBeyondTheSaturationCurvesInMetric)
{
    open(true);
    saveWorkedAir();
    const auto division = "message: Dunmoor: Run-time error '11':\nDivision by zero";
    EXPECT_EXIT(inputLeaving("200"), testing::ExitedWithCode(1), division);
    EXPECT_EXIT(inputLeaving("-99"), testing::ExitedWithCode(1), division);
    inputLeaving("199");
    EXPECT_EQ(HeatingLeavingAir.Tdb, 199.0F);
    inputLeaving("-98");
    EXPECT_EQ(HeatingLeavingAir.Tdb, -98.0F);
}
