// The heating load that the leaving air gives.

#include "tests/screens/HeatingFixture.h"

using HeatingLeavingDialog = HeatingTest;

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
