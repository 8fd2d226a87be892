// Leaving temperatures that the dialog refuses, and those that end the program.

#include "tests/screens/CoolingLeavingAirDialog.h"

TEST_F(CoolingLeavingAirDialog, SaysNothingToABlankDryBulbAndStays)
{
    openWithEnteringAir();
    inLeavingAir([this] {
        expectRefused("", "", prompt);
        expectRefused("80", "", tooWarm);
        expectRefused("", "60", tooWarm); // the old message remains
        EXPECT_EQ(user.text("txtLATwb"), "60");
    });
    EXPECT_TRUE(user.messages.empty());
}

TEST_F(CoolingLeavingAirDialog, RefusesWhatIsNotBelowTheEnteringAir)
{
    openWithEnteringAir();
    inLeavingAir([this] {
        expectRefused("80", "", tooWarm);
        expectRefused("80.1", "", tooWarm);
        expectRefused("95", "60", tooWarm);
    });
}

TEST_F(CoolingLeavingAirDialog, AsksForTheWetBulbBelowTheDewPoint)
{
    openWithEnteringAir();
    inLeavingAir([this] {
        expectRefused("59.7", "", needsWetBulb);
        expectRefused("59.7", "0", needsWetBulb);
        expectRefused("-39.9", "0.0", needsWetBulb);
        expectRefused("80", "", tooWarm);
    });
    expectButtons(false, false, true, false);
}

TEST_F(CoolingLeavingAirDialog, SaysNothingAtAllToFortyBelowOrColder)
{
    openWithEnteringAir();
    inLeavingAir([this] {
        for (const char* wetBulb : {"", "0", "20"}) {
            for (const char* dryBulb : {"-40", "-50"}) {
                LeavingAirAccepted = True16;
                LeavingWetBulbGiven = True16;
                answer(dryBulb, wetBulb);
                EXPECT_TRUE(isLoaded<CoolingLoad2>());
                EXPECT_EQ(user.text("Label1"), prompt);
                EXPECT_EQ(LeavingAirAccepted, True16);
                EXPECT_EQ(LeavingWetBulbGiven, True16);
            }
        }
        LeavingAirAccepted = False16;
    });
    EXPECT_TRUE(user.messages.empty());
}

TEST_F(CoolingLeavingAirDialog, LeavesTheStateAloneByARefusalAndOpensBlankAgain)
{
    openWithEnteringAir();
    inLeavingAir([this] {
        expectRefused("55", "", needsWetBulb);
        EXPECT_EQ(StatePoint.Tdb, 80.0F);
    });
    inLeavingAir([this] {
        EXPECT_EQ(user.text("Label1"), prompt);
        EXPECT_EQ(user.text("txtLATdb"), "");
        EXPECT_EQ(user.text("txtLATwb"), "");
    });
}

TEST_F(CoolingLeavingAirDialog, EndsTheProgramOnATextThatIsNoNumber)
{
    openWithEnteringAir();
    const auto mismatch = "message: Dunmoor: Run-time error '13':\nType mismatch";
    EXPECT_EXIT(setLeaving("abc"), testing::ExitedWithCode(1), mismatch);
    EXPECT_EXIT(setLeaving("65", "abc"), testing::ExitedWithCode(1), mismatch);
    const auto enter = [this] {
        user.type("txtLATdb", "abc");
        user.key(Qt::Key_Return);
    };
    EXPECT_EXIT(inLeavingAir(enter), testing::ExitedWithCode(1), mismatch);
}

TEST_F(CoolingLeavingAirDialog, EndsTheProgramOnAWetBulbOfLessThanNoWater)
{
    openWithEnteringAir();
    const auto invalid = "message: Dunmoor: Run-time error '5':\nInvalid procedure call or argument";
    EXPECT_EXIT(setLeaving("55", "35"), testing::ExitedWithCode(1), invalid);
    EXPECT_EXIT(setLeaving("62", "35"), testing::ExitedWithCode(1), invalid) << "above the dew point too";
    setLeaving("55", "38");
    EXPECT_EQ(LeavingAirAccepted, True16) << "hardly any water, and taken without a word";
    EXPECT_GT(CoolingLeavingAir.W, 0.0F);
    EXPECT_TRUE(user.messages.empty());
}
