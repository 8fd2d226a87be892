// The second screen of the humidification calculator: its appearance.

#include "tests/screens/HumidFixture.h"

using HumidityRequirement = HumidTest;

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
