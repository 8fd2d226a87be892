#include "tests/screens/MixedAirFixture.h"

#include <QAction>
#include <QWidget>

/// The table of the mixed air, after 1000 cfm at 95 and 3000 cfm at 75 degrees were mixed.
class MixedAirTable : public MixedAirTest
{
protected:
    void openTable(bool metric = false)
    {
        open(metric);
        calculate(metric ? "35" : "95", "txtRH", "40");
        save("btnSaveOSA", metric ? "500" : "1000");
        calculate(metric ? "24" : "75", "txtRH", "50");
        save("btnRA", "3000");
        user.click("btnMixedAir");
        ASSERT_EQ(user.window(), "Answers1");
    }

    std::vector<std::string> row(const std::string& array)
    {
        return {user.text(array + "(0)"), user.text(array + "(1)"), user.text(array + "(2)")};
    }
    using Row = std::vector<std::string>;

    int top(const std::string& control) { return user.widget(control)->y() * 10; }
    int left(const std::string& control) { return user.widget(control)->x() * 10; }
};

TEST_F(MixedAirTable, ShowsTheThreeStatesSideBySide)
{
    openTable();
    EXPECT_EQ(user.title(), "Mixed Air Properties");
    EXPECT_EQ(row("lblHeading"), (Row{" Outside       Air", " Return        Air", "  Mixed         Air"}));
    EXPECT_EQ(row("lblcfm"), (Row{"1,000", "3,000", "4,000"}));
    EXPECT_EQ(row("lblTdb"), (Row{"95.0", "75.0", FormatNumber(MixedResultAir.Tdb, "##0.0")}));
    EXPECT_EQ(row("lblRH")[0], "40.0");
    EXPECT_EQ(row("lblRH")[1], "50.0");
    EXPECT_EQ(row("lblW")[0], FormatNumber(MixedOutsideAir.W, "#0.0000"));
    EXPECT_EQ(row("lblTwb")[2], FormatNumber(MixedResultAir.Twb, "##0.0"));
    EXPECT_EQ(row("lbltd")[2], FormatNumber(MixedResultAir.td, "##0.0"));
    EXPECT_EQ(row("lblGrains")[1], FormatNumber(MixedReturnAir.Grains, "##0.0"));
    EXPECT_EQ(row("lblSpVol")[2], FormatNumber(MixedResultAir.SpVol, "##0.000"));
    EXPECT_EQ(row("lblH")[2], FormatNumber(MixedResultAir.h, "##0.00"));
    EXPECT_FALSE(User::findWindow("MixedAir")->isVisible());
    EXPECT_TRUE(isLoaded<MixedAir>());
}

TEST_F(MixedAirTable, ShowsItsCaptionsAndUnits)
{
    openTable();
    const std::pair<const char*, const char*> captions[] = {
        {"Label10", "  Volume"},
        {"Label1", "  Dry Bulb Temp"},
        {"Label2", "   Wet Bulb Temp"},
        {"Label16", "   Dew Point Temp"},
        {"Label12", "   Relative Humidity"},
        {"Label17", "   Humidity Ratio, W"},
        {"lblGrainsHead", "   Humidity Ratio, gr"},
        {"lblSpVolHead", "  Specific Volume, v"},
        {"lblHHead", "  Enthalpy, h"},
        {"lblcfmTail", " CFM"},
        {"lblTdbTail", " Deg. F"},
        {"lblTwbTail", " Deg. F"},
        {"lbltdTail", " Deg. F"},
        {"lblRHTail", " % R.H."},
        {"lblWTail", " lb. water/lb. dry air"},
        {"lblGrainsTail", " grains water/lb. dry air"},
        {"lblSpVolTail", " ft3 air/lb."},
        {"lblHTail", " Btu/lb."},
        {"btnOK", "OK"},
    };
    for (const auto& [name, caption] : captions)
        EXPECT_EQ(user.text(name), caption) << name;
}

TEST_F(MixedAirTable, StandsInItsPlaces)
{
    openTable();
    EXPECT_EQ(left("lblTdb(0)"), 2100);
    EXPECT_EQ(left("lblTdb(1)"), 2940);
    EXPECT_EQ(left("lblTdb(2)"), 3780);
    EXPECT_EQ(left("Label1"), 210);
    EXPECT_EQ(left("lblTdbTail"), 4620);
    EXPECT_EQ(user.widget("lblTdb(0)")->size(), QSize(75, 27));
    EXPECT_EQ(user.widget("lblHeading(0)")->height(), 54);
    EXPECT_EQ(top("lblHeading(0)"), 105 / 10 * 10);
    const std::pair<const char*, int> tops[] = {
        {"lblcfm(0)", 735}, {"lblTdb(0)", 1155}, {"lblTwb(0)", 1575},    {"lbltd(0)", 1995},
        {"lblRH(0)", 2415}, {"lblW(0)", 2835},   {"lblGrains(0)", 3255}, {"lblSpVol(0)", 3675},
        {"lblH(0)", 4095},  {"btnOK", 5040}};
    for (const auto& [control, twips] : tops)
        EXPECT_EQ(top(control), twips / 10 * 10) << control;
}

TEST_F(MixedAirTable, MovesUpPastTheGrainsInMetric)
{
    openTable(true);
    EXPECT_EQ(user.title(), "Mixed Air Properties");
    for (const char* hidden :
         {"lblGrainsHead", "lblGrainsTail", "lblGrains(0)", "lblGrains(1)", "lblGrains(2)"})
        EXPECT_FALSE(user.isVisible(hidden)) << hidden;
    EXPECT_FALSE(user.isEnabled("lblGrains(0)"));
    EXPECT_EQ(user.text("lblGrains(0)"), "");
    for (const char* specificVolume : {"lblSpVolHead", "lblSpVolTail", "lblSpVol(0)", "lblSpVol(2)"})
        EXPECT_EQ(top(specificVolume), 3250);
    for (const char* enthalpy : {"lblHHead", "lblHTail", "lblH(0)", "lblH(2)"})
        EXPECT_EQ(top(enthalpy), 3670);
    EXPECT_EQ(top("btnOK"), 4250);
    EXPECT_EQ(user.text("lblcfmTail"), " m3 / h");
    EXPECT_EQ(user.text("lblWTail"), " g water/kg dry air");
    EXPECT_EQ(user.text("lblW(0)"), FormatNumber(TaggedNumber(MixedOutsideAir.W) * 1000, "#0.00"));
    EXPECT_EQ(user.text("lblcfm(0)"), "500") << "no separator below a thousand";
    EXPECT_EQ(user.text("lblSpVolTail"), " m3/kg dry air");
    EXPECT_EQ(user.text("lblHTail"), " kJ/kg");
}

TEST_F(MixedAirTable, LeavesTheCellOfNoVolumeEmpty)
{
    open();
    calculate("75", "txtRH", "50");
    save("btnRA", "3000");
    calculate("95", "txtRH", "40");
    cancelSave("btnSaveOSA");
    user.click("btnMixedAir");
    EXPECT_EQ(row("lblcfm"), (Row{"", "3,000", "3,000"}));
}

TEST_F(MixedAirTable, GoesBackToTheCalculatorByThreeWays)
{
    openTable();
    const std::function<void()> ways[] = {[this] { user.click("btnOK"); },
                                          [this] { user.choose("mnuPrevious"); },
                                          [this] { user.closeWindow(); }};
    for (const auto& back : ways) {
        back();
        EXPECT_EQ(user.window(), "MixedAir");
        EXPECT_FALSE(isLoaded<Answers1>());
        user.click("btnMixedAir");
        ASSERT_EQ(user.window(), "Answers1");
    }
}

TEST_F(MixedAirTable, LeavesTheCalculatorLoadedAndAsItWasByExit)
{
    openTable();
    user.choose("mnuExit");
    EXPECT_EQ(user.window(), "MainForm");
    EXPECT_TRUE(isLoaded<MixedAir>());
    EXPECT_FALSE(isLoaded<Answers1>());
    user.click("btnMixedAir");
    EXPECT_EQ(user.text("txtCFM"), "4000") << "no load handler runs";
    expectButtons(true, true, true);
}

TEST_F(MixedAirTable, ShowsItsMenus)
{
    openTable();
    const std::pair<const char*, const char*> captions[] = {
        {"mnuFile", "&File"},
        {"mnuPrintResults", "&Print Results"},
        {"mnuSave2File", "&Save Results to File"},
        {"mnuPrevious", "&Previous Screen"},
        {"mnuExit", "E&xit"},
        {"mnuhelp", "&Help"},
        {"mnuHContents", "&Contents"},
        {"mnuAbout", "&About Dunmoor"},
    };
    for (const auto& [name, caption] : captions)
        EXPECT_EQ(user.menuEntry(name)->text().toStdString(), caption);
    EXPECT_TRUE(user.menuEntry("mnusep2")->isSeparator());
    EXPECT_TRUE(user.menuEntry("mnusep3")->isSeparator());
}

TEST_F(MixedAirTable, ColoursItsCells)
{
    openTable();
    const auto back = [this](const char* name) {
        return user.widget(name)->palette().color(user.widget(name)->backgroundRole());
    };
    EXPECT_EQ(back("lblTdb(0)"), QColor(0x80, 0xFF, 0xFF));
    EXPECT_EQ(back("Label1"), QColor(0xFF, 0xFF, 0xC0));
    EXPECT_EQ(back("lblTdbTail"), QColor(0xFF, 0xFF, 0xC0));
    EXPECT_EQ(back("lblHeading(1)"), QColor(0xC0, 0xFF, 0xFF));
    EXPECT_EQ(user.widget("lblTdb(0)")->font().families().first(), "Arial");
}
