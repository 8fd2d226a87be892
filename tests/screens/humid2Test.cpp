// The second screen of the humidification calculator: how it opens and closes.

#include "tests/screens/HumidFixture.h"

using namespace forms;

using HumidityRequirement = HumidTest;

TEST_F(HumidityRequirement, OpensBlankOverTheOutsideAir)
{
    open();
    calculateOutsideAir();
    inRequirement([this] {
        EXPECT_EQ(user.title(), " Humidity Calculation Setting - (English Units)");
        expectEmpty({"txtDesT", "txtDesH", "txtVol", "txtAC", "txtOSA"});
        EXPECT_EQ(moisture(), noMoisture);
        EXPECT_TRUE(User::findWindow("Humid1")->isVisible());
        user.click("btnOK");
    });
    EXPECT_EQ(user.window(), "Humid1");
}

TEST_F(HumidityRequirement, LetsItsOutputsBeTypedInto)
{
    open();
    calculateOutsideAir();
    std::string report;
    inRequirement([&] {
        for (const char* output : {"txtMassPerHour", "txtMassPerDay", "txtFlowPerHour", "txtFlowPerDay"}) {
            user.click(output);
            user.keys("4321");
            EXPECT_EQ(user.text(output), "4321") << output;
        }
        report = savedReport();
        user.click("btnOK");
    });
    EXPECT_NE(report.find("4,321"), std::string::npos) << report;
}

TEST_F(HumidityRequirement, LeavesTheStateAloneWhenItOpens)
{
    open();
    calculateOutsideAir();
    inRequirement([this] { user.choose("mnuExit"); });
    inRequirement([this] { user.click("btnOK"); });
    EXPECT_EQ(StatePoint.Tdb, 40.0F);
    EXPECT_EQ(StatePoint.W, 0.0015F);
}

TEST_F(HumidityRequirement, KeepsItsFieldsByItsOwnButton)
{
    open();
    calculateOutsideAir();
    moistureFor(workedEntries);
    EXPECT_TRUE(isLoaded<humid2>());
    inRequirement([this] {
        EXPECT_EQ(user.text("txtOSA"), "500");
        EXPECT_EQ(moisture(), workedMoisture);
        user.click("btnOK");
    });
}

TEST_F(HumidityRequirement, ComesBackBlankAfterItsMenusOrItsCloseBox)
{
    open();
    calculateOutsideAir();
    const std::function<void()> ways[] = {[this] { user.choose("mnuExit"); },
                                          [this] { user.choose("mnuMain"); }, [this] { user.closeWindow(); }};
    for (const auto& leave : ways) {
        inRequirement([&] {
            EXPECT_EQ(user.text("txtDesT"), "");
            EXPECT_EQ(user.text("txtOSA"), "");
            EXPECT_EQ(moisture(), noMoisture);
            require(workedEntries);
            EXPECT_EQ(moisture(), workedMoisture);
            leave();
        });
        EXPECT_EQ(user.window(), "Humid1") << "never the main menu";
        EXPECT_FALSE(isLoaded<humid2>());
        EXPECT_NEAR(HumidDesiredAir.W, 0.0082, 1e-6) << "outlives it";
    }
}

TEST_F(HumidityRequirement, SavesTheReportOfWhatItShows)
{
    open();
    calculateOutsideAir();
    std::string report;
    inRequirement([&] {
        require(workedEntries);
        report = savedReport();
        EXPECT_EQ(user.window(), "humid2");
        user.click("btnOK");
    });
    EXPECT_NE(report.find("Humidified Air Properties"), std::string::npos) << report;
    EXPECT_NE(report.find("43.14"), std::string::npos) << report;
    EXPECT_NE(report.find("500"), std::string::npos) << report;
}
