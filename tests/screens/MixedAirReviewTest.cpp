// The two reviews: what they show.

#include "tests/screens/MixedAirFixture.h"

#include <QAction>

using MixedAirReview = MixedAirTest;

TEST_F(MixedAirReview, ReviewsAStream)
{
    open();
    saveBothStreams();
    user.choose("mnuReviewOutsideAir");
    expectCaptions({{"txtTdb", "95"}, {"txtcfm1", "1000"}, {"txtRH", "40.0"}});
    EXPECT_EQ(StatePoint.Tdb, 95.0F);
    EXPECT_EQ(HumiditySelector, "Dew Point");
    expectButtons(true, false, false);

    user.choose("mnuReviewReturnAir");
    expectCaptions({{"txtTdb", "75"}, {"txtcfm2", "3000"}, {"txtCFM", ""}});
}

TEST_F(MixedAirReview, LeavesTheTotalAloneInTheOutsideAirsReviewOnly)
{
    mixBothStreams();
    user.click("btnOK");
    user.choose("mnuReviewOutsideAir");
    EXPECT_EQ(user.text("txtCFM"), "4000");
    user.choose("mnuReviewReturnAir");
    EXPECT_EQ(user.text("txtCFM"), "");
}

TEST_F(MixedAirReview, ReviewsAtThePressureOfTheLastCalculation)
{
    open();
    saveOutsideAir();
    StatePoint.P = 12.0F;
    user.choose("mnuReviewOutsideAir");
    EXPECT_EQ(MixedOutsideAir.P, 12.0F);
}

TEST_F(MixedAirReview, EndsTheProgramOnTheReviewOfAStreamThatWasNeverSaved)
{
    open();
    saveOutsideAir();
    EXPECT_EXIT(user.choose("mnuReviewReturnAir"), testing::ExitedWithCode(1),
                "message: Dunmoor: Run-time error '5':\nInvalid procedure call or argument");
}

TEST_F(MixedAirReview, NeverReviewsTheMixture)
{
    mixBothStreams();
    user.click("btnOK");
    const std::string before = user.text("txtTdb");
    user.choose("mnuReviewMixedAir");
    EXPECT_EQ(user.text("txtTdb"), before);
    EXPECT_FALSE(user.menuEntry("mnuReviewMixedAir")->isEnabled());
}
