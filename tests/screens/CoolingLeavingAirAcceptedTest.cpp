// Leaving temperatures that the dialog accepts, and what its other ways out leave behind.

#include "tests/screens/CoolingLeavingAirDialog.h"

TEST_F(CoolingLeavingAirDialog, TakesTheDewPointItselfForADryCoil)
{
    openWithEnteringAir();
    inLeavingAir([this] { expectAccepted("59.8", "", False16); });
    EXPECT_EQ(user.text("txtTdb"), "59.8");
    expectButtons(false, false, false, true);
}

TEST_F(CoolingLeavingAirDialog, TakesAnythingBetweenDewPointAndEnteringAirForADryCoil)
{
    openWithEnteringAir();
    inLeavingAir([this] {
        StatePoint.W = 0.5F;
        StatePoint.P = 1.0F;
        expectAccepted("79.9", "0", False16);
        EXPECT_EQ(StatePoint.Tdb, 79.9F);
        EXPECT_EQ(StatePoint.W, CoolingEnteringAir.W);
        EXPECT_EQ(StatePoint.P, CoolingEnteringAir.P);
        EXPECT_EQ(CoolingLeavingAir.Tdb, 79.9F);
        EXPECT_EQ(CoolingLeavingAir.W, CoolingEnteringAir.W);
        EXPECT_EQ(CoolingLeavingAir.P, CoolingEnteringAir.P);
    });
}

TEST_F(CoolingLeavingAirDialog, TakesAnyWetBulbForAWetCoil)
{
    openWithEnteringAir();
    const std::pair<const char*, const char*> entries[] = {
        {"65", "60"},     // above the dew point
        {"59.8", "58"},   // at it
        {"55", "54"},     // below it
        {"55", "70"},     // a wet bulb above the dry bulb
        {"-39.9", "-40"}, // the lowest temperatures
    };
    for (const auto& [dryBulb, wetBulb] : entries) {
        calculate("80", "txtRH", "50");
        saveEntering();
        inLeavingAir([this, dry = dryBulb, wet = wetBulb] { expectAccepted(dry, wet, True16); });
        expectButtons(false, false, false, true);
    }
}

TEST_F(CoolingLeavingAirDialog, LeavesTheWetStateToTheCalculator)
{
    openWithEnteringAir();
    inLeavingAir([this] {
        StatePoint.P = 1.0F;
        expectAccepted("65", "60", True16);
        EXPECT_EQ(StatePoint.Tdb, 65.0F);
        EXPECT_EQ(StatePoint.Twb, 60.0F);
        EXPECT_EQ(StatePoint.P, CoolingEnteringAir.P);
        EXPECT_EQ(CoolingLeavingAir.Tdb, 65.0F);
        EXPECT_EQ(CoolingLeavingAir.Twb, 60.0F);
        EXPECT_EQ(CoolingLeavingAir.P, CoolingEnteringAir.P);
        EXPECT_EQ(StatePoint.PwsWet, SaturationPressure(FahrenheitToRankine(60.0F)));
        EXPECT_EQ(StatePoint.Pws, SaturationPressure(FahrenheitToRankine(65.0F)));
        EXPECT_EQ(CoolingLeavingAir.W, StatePoint.W.asSingle());
        EXPECT_NEAR(CoolingLeavingAir.W, 0.009888867, 1e-8);
    });
    EXPECT_NEAR(CoolingLeavingAir.W, 0.009888867, 1e-8);
}

TEST_F(CoolingLeavingAirDialog, KeepsTheFahrenheitScaleBelowTheDewPointInMetricForAMoment)
{
    openWithEnteringAir(true);
    inLeavingAir([this] {
        expectAccepted("12", "11.5", True16);
        EXPECT_EQ(StatePoint.PwsWet, SaturationPressure(FahrenheitToRankine(11.5F)));
        EXPECT_EQ(StatePoint.Pws, SaturationPressure(FahrenheitToRankine(12.0F)));
    });
    EXPECT_EQ(StatePoint.PwsWet, SaturationPressure(ToAbsolute(11.5F))) << "the calculator works it out anew";
    EXPECT_NEAR(CoolingLeavingAir.W, 0.008235618, 1e-8);

    calculate("30", "txtRH", "50");
    saveEntering("3600");
    inLeavingAir([this] {
        expectAccepted("20", "19", True16);
        EXPECT_EQ(StatePoint.PwsWet, SaturationPressure(ToAbsolute(19.0F))) << "not so above the dew point";
    });
}

TEST_F(CoolingLeavingAirDialog, WipesTheWetBulbWithTheDryBulb)
{
    openWithEnteringAir();
    inLeavingAir([this] {
        user.type("txtLATdb", "55");
        user.type("txtLATwb", "54");
        user.type("txtLATdb", "56");
        EXPECT_EQ(user.text("txtLATwb"), "54");
        user.type("txtLATdb", "");
        EXPECT_EQ(user.text("txtLATwb"), "");
    });
}

TEST_F(CoolingLeavingAirDialog, TakesNothingBackByCancelButTheAcceptance)
{
    openWithEnteringAir();
    const AirSnapshot before = CoolingLeavingAir;
    inLeavingAir([this] {
        LeavingAirAccepted = True16;
        LeavingWetBulbGiven = True16;
        user.type("txtLATdb", "65");
        user.click("btnCancel");
        EXPECT_FALSE(isLoaded<CoolingLoad2>());
    });
    EXPECT_EQ(LeavingAirAccepted, False16);
    EXPECT_EQ(LeavingWetBulbGiven, True16);
    EXPECT_EQ(StatePoint.Tdb, 80.0F);
    EXPECT_EQ(CoolingLeavingAir.Tdb, before.Tdb);
}

TEST_F(CoolingLeavingAirDialog, ChangesNoFlagByItsCloseBox)
{
    openWithEnteringAir();
    inLeavingAir([this] {
        LeavingWetBulbGiven = True16;
        user.type("txtLATdb", "65");
        user.closeWindow();
        EXPECT_FALSE(isLoaded<CoolingLoad2>());
    });
    EXPECT_EQ(LeavingAirAccepted, False16);
    EXPECT_EQ(LeavingWetBulbGiven, True16);
    expectButtons(false, false, true, false);
}
