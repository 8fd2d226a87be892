// The leaving air dialog of the heating load: its look, its close box, and what ends the program.

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
