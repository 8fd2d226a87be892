// The second screen of the humidification calculator: its appearance, and how it opens and closes.

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

TEST_F(HumidityRequirement, StandsAQuarterDownInTheMiddleOfTheScreen)
{
    open();
    calculateOutsideAir();
    inRequirement([this] {
        EXPECT_EQ(User::findWindow("humid2")->size(), QSize(800, 660));
        expectAQuarterDownInTheMiddle();
        user.click("btnOK");
    });
}

TEST_F(HumidityRequirement, ShowsItsCaptions)
{
    open();
    calculateOutsideAir();
    inRequirement([this] {
        expectCaptions({
            {"Frame2", "Enter Desired Humidity and Temperature:"},
            {"Label13", "  Desired Space Temperature           "},
            {"Label1", "  Desired Relative Humidity                 "},
            {"Frame1", ""},
            {"Label17", "Next, Enter either Infiltration parameters or Volume of Outside Air"},
            {"Label8", "Natural Infiltration :"},
            {"Label2", "  Volume of Space               "},
            {"Label3", "  Estimated Air Changes (outside air)"},
            {"Label16", "or Volume of Outside Air:"},
            {"Frame3", "Required Moisture :"},
            {"btnCalcHumid", "Click Here to Calculate Humidification"},
            {"btnOK", "Click Here When Done"},
            {"lblRH", " % RH"},
            {"lblT", " deg. F"},
            {"lblSpaceVol", " cubic feet (ft3)"},
            {"lblAC", " AC"},
            {"lblOSAFlow1", " Cubic Feet per Minute (CFM)"},
            {"lblOSAFlow2", " ft3 per min."},
            {"lblMassPerHour", " lb. per hr."},
            {"lblFlowPerHour", " gal. per hr."},
            {"lblMassPerDay", " lb. per day"},
            {"lblFlowPerDay", " gal. per day"},
        });
        user.click("btnOK");
    });
}

TEST_F(HumidityRequirement, ShowsItsMetricCaptions)
{
    open(true);
    calculateOutsideAir();
    inRequirement([this] {
        EXPECT_EQ(user.title(), " Humidity Calculation Settings - (Metric Units - SI)");
        expectCaptions({
            {"lblRH", " % RH"},
            {"lblT", " deg. C"},
            {"lblSpaceVol", " cubic meters"},
            {"lblAC", "  AC"},
            {"lblOSAFlow1", " cubic meters per hour"},
            {"lblOSAFlow2", " cubic meters per hour"},
            {"lblMassPerHour", " kg per hour"},
            {"lblFlowPerHour", " liters per hour"},
            {"lblMassPerDay", " kg per day"},
            {"lblFlowPerDay", " liters per day"},
        });
        user.click("btnOK");
    });
}

TEST_F(HumidityRequirement, HoldsItsControlsInTheirFrames)
{
    open();
    calculateOutsideAir();
    inRequirement([this] {
        expectInside("Frame2", {"Label13", "txtDesT", "lblT", "Label1", "txtDesH", "lblRH"});
        expectInside("Frame1", {"Label17", "Label8", "Label2", "txtVol", "lblSpaceVol", "Label3", "txtAC",
                                "lblAC", "Label16", "lblOSAFlow1", "txtOSA", "lblOSAFlow2"});
        expectInside("Frame3", {"txtMassPerHour", "lblMassPerHour", "txtMassPerDay", "lblMassPerDay",
                                "txtFlowPerHour", "lblFlowPerHour", "txtFlowPerDay", "lblFlowPerDay"});
        user.click("btnOK");
    });
}

TEST_F(HumidityRequirement, ShowsItsMenus)
{
    open();
    calculateOutsideAir();
    inRequirement([this] {
        EXPECT_EQ(menu(), (Names{"mnuFile=&File", "mnuMain=&Main Menu", "mnuHelp=&Help"}));
        EXPECT_EQ(menu("mnuFile"),
                  (Names{"mnuPrint=&Print Results", "mnuSave=&Save Results to File", "-", "mnuExit=E&xit"}));
        EXPECT_TRUE(user.menuEntry("mnuSpacer")->isSeparator());
        EXPECT_EQ(menu("mnuHelp"), (Names{"mnuHumid2Help=Help for Humidity",
                                          "mnuSearch=&Search for Help on ...", "mnuAbout=&About Dunmoor"}));
        user.click("btnOK");
    });
}

TEST_F(HumidityRequirement, ColoursItsFieldsByWhatTheyAreFor)
{
    open();
    calculateOutsideAir();
    inRequirement([this] {
        for (const char* desired : {"txtDesT", "txtDesH"})
            EXPECT_EQ(back(desired), QColor(128, 255, 255)) << desired;
        for (const char* quantity : {"txtVol", "txtAC", "txtOSA"})
            EXPECT_EQ(back(quantity), QColor(128, 255, 128)) << quantity;
        for (const char* output : {"txtMassPerHour", "txtMassPerDay", "txtFlowPerHour", "txtFlowPerDay"})
            EXPECT_EQ(back(output), QColor(255, 255, 128)) << output;
        user.click("btnOK");
    });
}

TEST_F(HumidityRequirement, LeadsByTabFromTheHumidityToTheTemperatureAndPastTheOutputs)
{
    open();
    calculateOutsideAir();
    inRequirement([this] {
        EXPECT_EQ(focusAtOpening(), "txtDesH");
        const Names stops = tabStopsFrom("txtDesH");
        const Names fields(stops.begin(), stops.begin() + 5);
        EXPECT_EQ(fields, (Names{"txtDesH", "txtDesT", "txtVol", "txtAC", "txtOSA"}));
        for (const char* output : {"txtMassPerHour", "txtMassPerDay", "txtFlowPerHour", "txtFlowPerDay"})
            EXPECT_EQ(std::ranges::count(stops, output), 0) << output;
        user.click("btnOK");
    });
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
