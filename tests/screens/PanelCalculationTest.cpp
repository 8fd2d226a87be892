// What each air-state panel's calculation shows, refuses and leaves behind.

#include "tests/screens/PanelFixture.h"

class PanelCalculation : public PanelTest
{
protected:
    static inline const Message ratioTooHigh{"Humidity Ratio Input is High, Try Again!", "Dunmoor"};
    static inline const Message grainsTooMany{"Humidity Ratio Input is too High, Try Again!", "Dunmoor"};

    /// What a user does before the button: clicks the item and types it.
    std::function<void()> entering(const std::string& tdb, const std::string& item, const std::string& text)
    {
        return [=, this] { enter(tdb, item, text); };
    }

    std::string lastItem() const
    {
        return expected().discardsTypedGrains || IsMetric() ? "Dew Point" : "Grains";
    }
};

RUN_ON_EVERY_PANEL(PanelCalculation);

TEST_P(PanelCalculation, ShowsTheWholeStateOfSeventyDegreesAtFiftyPercent)
{
    open();
    calculate("70", "txtRH", "50");
    expectCaptions({{"txtTdb", "70"},
                    {"txtTwb", "58.4"},
                    {"txttd", "50.6"},
                    {"txtRH", "50.0"},
                    {"txtW", "0.00778"},
                    {"txtGrains", "54.5"},
                    {"txth", "25.30"},
                    {"txtSpVol", "13.521"}});
    EXPECT_EQ(StatePoint.P, 14.696F);
    EXPECT_TRUE(user.messages.empty());
    EXPECT_EQ(user.focus(), expected().focusAfterCalculation);
    EXPECT_EQ(HumiditySelector, lastItem());
}

TEST_P(PanelCalculation, ShowsTheWholeStateInMetric)
{
    open(true);
    calculate("20", "txtRH", "50");
    expectCaptions({{"txtTdb", "20"},
                    {"txtTwb", "13.8"},
                    {"txttd", "9.3"},
                    {"txtRH", "50.0"},
                    {"txtW", "7.26"},
                    {"txtGrains", ""},
                    {"txth", "38.42"},
                    {"txtSpVol", "0.840"}});
    EXPECT_EQ(StatePoint.P, 101352.0);
    EXPECT_TRUE(user.messages.empty());
    EXPECT_EQ(HumiditySelector, lastItem());
}

TEST_P(PanelCalculation, EnablesTheNextSteps)
{
    open();
    expectButtonsAfterCalculating(expected().afterCalculation, entering("70", "txtRH", "50"));
}

TEST_P(PanelCalculation, WorksFromTheItemThatChangedLastOnASecondPress)
{
    open();
    calculate("70", "txtRH", "50");
    user.type("txtTdb", "80");
    user.widget("btnCALCULATE")->setEnabled(true);
    user.click("btnCALCULATE");
    if (lastItem() == "Grains") {
        EXPECT_EQ(StatePoint.W, 54.5 / 7000.0) << "the grains as displayed";
        EXPECT_EQ(user.text("txtGrains"), "54.5");
    } else {
        EXPECT_EQ(StatePoint.td, static_cast<double>(50.6F)) << "the dew point as displayed";
    }
    EXPECT_NE(user.text("txtRH"), "50.0");
}

TEST_P(PanelCalculation, WorksFromTheDewPointOnASecondPressInMetric)
{
    open(true);
    calculate("20", "txtRH", "50");
    user.widget("btnCALCULATE")->setEnabled(true);
    user.click("btnCALCULATE");
    EXPECT_EQ(StatePoint.td, static_cast<double>(9.3F)) << "the dew point as displayed";
}

TEST_P(PanelCalculation, TakesABlankDryBulbForZeroDegrees)
{
    open();
    calculate("70", "txtRH", "50");
    calculate("", "txtRH", "50");
    EXPECT_TRUE(user.messages.empty());
    EXPECT_EQ(StatePoint.Tdb, 0.0F);
    EXPECT_NE(user.text("txth"), "");
}

TEST_P(PanelCalculation, RefusesADryBulbThatIsNoNumberAndKeepsTheOldOne)
{
    open();
    calculate("70", "txtRH", "50");
    expectButtonsAfterCalculating(expected().whereRefused, entering("abc", "txtRH", "50"));
    EXPECT_EQ(user.messages, (std::vector{outOfRange, outOfRange}));
    EXPECT_EQ(StatePoint.Tdb, 70.0F);
    EXPECT_EQ(user.text("txtTdb"), "abc");
}

TEST_P(PanelCalculation, RefusesAnItemThatIsNoNumber)
{
    open();
    for (const std::string& item : typedItems()) {
        user.messages.clear();
        expectButtonsAfterCalculating(expected().whereRefused, entering("70", item, "abc"));
        EXPECT_EQ(user.messages, (std::vector{outOfRange, outOfRange})) << item;
        EXPECT_EQ(user.text(item), "abc");
    }
}

TEST_P(PanelCalculation, RefusesAWetBulbFarBelowTheDryBulb)
{
    open();
    expectButtonsAfterCalculating(expected().whereRefused, entering("70", "txtTwb", "20"));
    EXPECT_EQ(user.messages, (std::vector{outOfRange, outOfRange}));
    EXPECT_LT(StatePoint.W, 0.0) << "the solver got that far";
    EXPECT_EQ(user.text("txtTwb"), "20");
}

TEST_P(PanelCalculation, GoesOnAfterAHumidityRatioThatIsTooHighWithTheFieldsAsTheyWere)
{
    open();
    for (const auto& [item, tooHigh, words] :
         {std::tuple{"txtW", "0.05", ratioTooHigh}, std::tuple{"txtGrains", "500", grainsTooMany}}) {
        if (std::ranges::count(typedItems(), item) == 0)
            continue;
        user.messages.clear();
        calculate("70", "txtRH", "50");
        expectButtonsAfterCalculating(expected().afterTooHighRatio, entering("70", item, tooHigh));
        EXPECT_EQ(user.messages, (std::vector{words, words}));
        EXPECT_EQ(user.text(item), tooHigh);
        expectEmpty({"txtTwb", "txtRH", "txth", "txtSpVol"});
        EXPECT_GT(StatePoint.RH, 1.0);
    }
}

TEST_P(PanelCalculation, KeepsTheEarlierResultsBesideATypedRatioThatIsTooHigh)
{
    open();
    calculate("70", "txtRH", "50");
    user.type("txtW", "0.05");
    user.widget("btnCALCULATE")->setEnabled(true);
    user.click("btnCALCULATE");
    // Without a change handler the typed ratio is not the selected item, and the results overwrite it.
    const bool isSelected = std::ranges::count(expected().itemsWithChangeHandler, "txtW") == 1;
    EXPECT_EQ(user.messages, isSelected ? std::vector{ratioTooHigh} : std::vector<Message>{});
    EXPECT_EQ(user.text("txtW") == "0.05", isSelected);
    if (isSelected)
        expectCaptions({{"txtTwb", "58.4"}, {"txtRH", "50.0"}, {"txth", "25.30"}, {"txtSpVol", "13.521"}});
}

TEST_P(PanelCalculation, WaitsAtTheMessageBox)
{
    open();
    enter("130", "txtRH", "50");
    bool isBack = false;
    bool wasSeen = false;
    user.atMessage([&] {
        wasSeen = true;
        EXPECT_FALSE(isBack);
        EXPECT_NE(user.window(), expected().form) << "the form takes no input meanwhile";
    });
    user.click("btnCALCULATE");
    isBack = true;
    EXPECT_TRUE(wasSeen);
}
