// The mixed air calculator stays loaded and hidden when the table is left for the main menu, where the units
// may change.

#include "tests/screens/MixedAirFixture.h"

using namespace forms;

class HiddenMixedAir : public MixedAirTest
{
protected:
    /// Mixes two streams and leaves the table for the main menu.
    void mixAndLeave()
    {
        calculate("35", "txtRH", "40");
        save("btnSaveOSA", "1000");
        save("btnRA", "3000");
        wetBulb = user.text("txtTwb");
        user.click("btnMixedAir");
        ASSERT_EQ(user.window(), "Answers1");
        user.choose("mnuExit");
        ASSERT_EQ(user.window(), "MainForm");
        ASSERT_TRUE(isLoaded<MixedAir>());
    }

    void changeUnits(const std::string& units)
    {
        user.inDialog("Settings", [this, units] {
            user.chooseFromList("Combo1", units);
            user.click("btnOK");
        });
        user.choose("mnuOptions");
    }

    void expectEnglishTexts()
    {
        EXPECT_EQ(user.title(), " Adiabatic Mixing of Moist Air - (English Units)");
        expectCaptions({{"lblTdb2", " Deg. F"},
                        {"lblP2", " psi"},
                        {"txtP", "14.696"},
                        {"lblW2", " lb. water/lb. dry air"},
                        {"lblGrains1", " Humidity Ratio, gr"},
                        {"lblGrains2", " grains"},
                        {"lblcfm1", " Cfm Outside Air"}});
        EXPECT_TRUE(user.isEnabled("txtGrains"));
    }

    void expectMetricTexts()
    {
        EXPECT_EQ(user.title(), " Adiabatic Mixing of Moist Air - (Metric Units)");
        expectCaptions({{"lblTdb2", " Deg. C"},
                        {"lblP2", " kPa"},
                        {"txtP", "101.352"},
                        {"lblW2", " g water/kg dry air"},
                        {"lblGrains1", "  "},
                        {"lblGrains2", "  "},
                        {"lblcfm1", " m3/h Outside Air"}});
        EXPECT_FALSE(user.isEnabled("txtGrains"));
    }

    std::string wetBulb; ///< as shown before the calculator was left
};

TEST_F(HiddenMixedAir, KeepsItsTextsAfterAChangeOfUnitsUntilItCalculates)
{
    open();
    mixAndLeave();
    changeUnits("Metric, SI");
    user.click("btnMixedAir");
    expectEnglishTexts();
    EXPECT_EQ(user.text("txtTwb"), wetBulb);

    calculate("35", "txtRH", "40");
    EXPECT_TRUE(user.messages.empty());
    expectMetricTexts();
    EXPECT_NE(user.text("txtTwb"), wetBulb);
}

TEST_F(HiddenMixedAir, KeepsTheBlankCaptionOfTheGrainsOnReturnToEnglish)
{
    open(true);
    mixAndLeave();
    changeUnits("English, I-P");
    user.click("btnMixedAir");
    expectMetricTexts();

    calculate("95", "txtRH", "40");
    EXPECT_EQ(user.text("lblGrains2"), " grains");
    EXPECT_TRUE(user.isEnabled("txtGrains"));
    EXPECT_EQ(user.text("lblGrains1"), "  ") << "intentional: English leaves the caption alone";
}

TEST_F(HiddenMixedAir, RefusesInMetricTheGrainsThatAnotherCalculatorSelected)
{
    open();
    mixAndLeave();
    user.click("btnAirCalc");
    calculate("70", "txtRH", "50");
    user.choose("mnuMain1");
    ASSERT_EQ(HumiditySelector, "Grains");
    changeUnits("Metric, SI");

    user.click("btnMixedAir");
    user.click("btnCALCULATE");
    EXPECT_EQ(user.messages, std::vector{outOfRange});
    expectButtons(false, true, true);
}
