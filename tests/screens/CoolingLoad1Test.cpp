// The cooling calculator besides its panel (see PanelExpectations.h).

#include "tests/screens/CoolingFixture.h"

#include <QWidget>

using CoolingScreen = CoolingTest;

TEST_F(CoolingScreen, ShowsThreeOfItsFramesBold)
{
    open();
    for (const char* bold : {"Frame6", "Frame2", "Frame1"})
        EXPECT_TRUE(user.widget(bold)->font().bold()) << bold;
    for (const char* plain : {"Frame5", "Frame3", "txtTdb", "txtTwb"})
        EXPECT_FALSE(user.widget(plain)->font().bold()) << plain;
}

TEST_F(CoolingScreen, LaysTheBannerAcrossTheTop)
{
    open();
    const QWidget* const window = User::findWindow("CoolingLoad1");
    const auto placeOf = [&](const char* name) {
        const QWidget* const control = user.widget(name);
        return QRect(control->mapTo(window, QPoint(0, 0)), control->size());
    };
    for (const char* below : {"Frame1", "Frame2", "Frame3", "Frame5"})
        EXPECT_GE(placeOf(below).top(), placeOf("Frame6").bottom()) << below;
    EXPECT_GE(placeOf("Frame6").right(), placeOf("Frame5").right());
}

TEST_F(CoolingScreen, LeavesTheStateAsTheLastScreenLeftIt)
{
    start();
    user.click("btnAirCalc");
    calculate("70", "txtRH", "50");
    user.choose("mnuMain1");
    user.click("btnCooling");
    EXPECT_EQ(StatePoint.Tdb, 70.0F);
    EXPECT_EQ(StatePoint.RH, 0.5);
    EXPECT_EQ(user.text("txtTdb"), "");
    EXPECT_EQ(user.text("txtRH"), "");
}

TEST_F(CoolingScreen, CalculatesByEnterWhileTheButtonIsOn)
{
    open();
    user.type("txtTdb", "80");
    user.type("txtRH", "50");
    user.key(Qt::Key_Return);
    EXPECT_EQ(user.text("txttd"), "59.8");
    expectButtons(false, true, false, false);

    user.widget("txtRH")->setFocus();
    user.key(Qt::Key_Return);
    EXPECT_EQ(user.focus(), "txtRH");
    expectButtons(false, true, false, false);
    EXPECT_TRUE(user.messages.empty());
}

TEST_F(CoolingScreen, TurnsTheStepsAfterSavingOffWhereACalculationFails)
{
    openWithEnteringAir();
    user.type("txtRH", "60");
    user.type("txtTdb", "126");
    expectButtons(true, false, true, false);
    user.click("btnCALCULATE");
    expectButtons(false, false, false, false);

    calculate("80", "txtRH", "50");
    user.type("txtRH", "x");
    user.click("btnCALCULATE");
    EXPECT_EQ(user.messages, (std::vector{temperatureOutOfRange, outOfRange}));
    expectButtons(false, true, false, false);
}

TEST_F(CoolingScreen, OffersToSaveARefusedHumidityWithTheOldResultsShowing)
{
    open();
    calculate("80", "txtRH", "50");
    const std::pair<const char*, const char*> refusals[] = {
        {"txtW", "Humidity Ratio Input is High, Try Again!"},
        {"txtGrains", "Humidity Ratio Input is too High, Try Again!"}};
    for (const auto& [field, words] : refusals) {
        user.type(field, "900");
        user.click("btnCALCULATE");
        EXPECT_EQ(user.messages.back(), (Message{words, "Dunmoor"}));
        expectButtons(false, true, false, false);
        EXPECT_EQ(user.focus(), "btnSaveEA");
        EXPECT_EQ(user.text(field), "900");
        EXPECT_EQ(user.text("txth"), "31.18");
        EXPECT_EQ(user.text("txtSpVol"), "13.845");
    }
    EXPECT_EQ(user.messages.size(), 2U);
}
