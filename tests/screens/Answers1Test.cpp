// The mixed air table: its look, its figures and its ways out.

#include "tests/screens/MixedAirTable.h"

#include <QAction>

TEST_F(MixedAirTable, ShowsTheThreeStatesSideBySide)
{
    openTable();
    EXPECT_EQ(user.title(), "Mixed Air Properties");
    EXPECT_EQ(row("lblHeading"), (Row{" Outside       Air", " Return        Air", "  Mixed         Air"}));
    EXPECT_EQ(row("lblcfm"), (Row{"1,000", "3,000", "4,000"}));
    EXPECT_EQ(row("lblTdb"), (Row{"95.0", "75.0", "79.9"}));
    EXPECT_EQ(row("lblRH")[0], "40.0");
    EXPECT_EQ(row("lblRH")[1], "50.0");
    expectThreeColumns();
    EXPECT_FALSE(User::findWindow("MixedAir")->isVisible());
    EXPECT_TRUE(isLoaded<MixedAir>());
}

TEST_F(MixedAirTable, ShowsItsCaptionsAndUnits)
{
    openTable();
    expectCaptions({{"Label10", "  Volume"},
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
                    {"btnOK", "OK"}});
}

TEST_F(MixedAirTable, StandsInItsPlaces)
{
    openTable();
    for (std::size_t column = 0; column < columnLeft.size(); ++column)
        expectPlace(cell("lblHeading", column), columnLeft[column], 105, QSize(75, 54));
    for (const auto& row : rows) {
        expectRowAt(row, row.top);
        EXPECT_EQ(left(row.caption), 210) << row.caption;
        EXPECT_EQ(left(row.unit), 4620) << row.unit;
    }
    EXPECT_EQ(top("btnOK"), 5040);
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
    for (const auto& row : rows)
        if (row.array != std::string("lblGrains"))
            expectRowAt(row, row.metricTop);
    EXPECT_EQ(top("btnOK"), 4250);
    EXPECT_EQ(user.text("lblcfmTail"), " m3 / h");
    for (const char* degrees : {"lblTdbTail", "lblTwbTail", "lbltdTail"})
        EXPECT_EQ(user.text(degrees), " Deg. C");
    expectCaptions({{"lblRHTail", " % R.H."},
                    {"lblGrainsTail", " "},
                    {"lblGrainsHead", " "},
                    {"lblWTail", " g water/kg dry air"}});
    expectThreeColumns();
    EXPECT_EQ(user.text("lblcfm(0)"), "500") << "no separator below a thousand";
    EXPECT_EQ(user.text("lblSpVolTail"), " m3/kg dry air");
    EXPECT_EQ(user.text("lblHTail"), " kJ/kg");
}

TEST_F(MixedAirTable, LeavesTheCellOfNoVolumeEmpty)
{
    mixReturnAirAlone();
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

TEST_F(MixedAirTable, CentersItsHeadings)
{
    openTable();
    for (std::size_t column = 0; column < columnLeft.size(); ++column)
        EXPECT_EQ(user.widget(cell("lblHeading", column))->property("alignment").toInt(),
                  static_cast<int>(Qt::AlignCenter));
}

TEST_F(MixedAirTable, ColoursItsCellsAndWritesThemInArial)
{
    openTable();
    const auto expectLook = [this](const std::string& label, const QColor& colour) {
        EXPECT_EQ(back(label), colour) << label;
        EXPECT_EQ(fore(label), QColor(0, 0, 0)) << label;
        EXPECT_EQ(user.widget(label)->font().families().first(), "Arial") << label;
    };
    for (std::size_t column = 0; column < columnLeft.size(); ++column)
        expectLook(cell("lblHeading", column), QColor(0xC0, 0xFF, 0xFF));
    for (const auto& row : rows) {
        expectLook(row.caption, QColor(0xFF, 0xFF, 0xC0));
        expectLook(row.unit, QColor(0xFF, 0xFF, 0xC0));
        for (std::size_t column = 0; column < columnLeft.size(); ++column)
            expectLook(cell(row.array, column), QColor(0x80, 0xFF, 0xFF));
    }
}
