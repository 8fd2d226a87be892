// What each calculator with an air-state panel shows when it opens, and how it comes and goes.

#include "tests/screens/PanelFixture.h"

#include <QDir>

namespace {

struct UnitCaption
{
    const char* control;
    const char* english;
    const char* metric;
};

/// But for that of the humidity ratio, which differs by calculator.
constexpr UnitCaption unitCaptions[] = {
    {"lblTdb2", " Deg. F", " Deg. C"},      {"lblTwb2", " Deg. F", " Deg. C"},
    {"lblDewPt2", " Deg. F", " Deg. C"},    {"lblRH2", " %", " %"},
    {"lblGrains2", " grains", "  "},        {"lblSpVol2", " ft3/lb.", " m3/kg dry air"},
    {"lblEnthalpy2", " Btu/lb.", " kJ/kg"}, {"lblP2", " psi", " kPa"},
    {"txtP", "14.696", "101.352"},
};

const std::string englishHumidityUnit = " lb. water/lb. dry air";

} // namespace

class PanelLook : public PanelTest
{
protected:
    void expectSpoken(const Captions& names)
    {
        for (const auto& [field, name] : names)
            EXPECT_EQ(user.widget(field)->accessibleName().toStdString(), name);
    }

    QRect placeOf(const std::string& name)
    {
        const QWidget* const control = user.widget(name);
        return {control->mapTo(User::findWindow(expected().form), QPoint(0, 0)), control->size()};
    }

    void expectFromTheTop(const Names& controls)
    {
        for (std::size_t i = 1; i < controls.size(); ++i)
            EXPECT_GT(placeOf(controls[i]).top(), placeOf(controls[i - 1]).bottom()) << controls[i];
    }

    static Names namesOf(const Captions& controls)
    {
        Names names;
        for (const auto& [name, caption] : controls)
            names.push_back(name);
        return names;
    }

    void expectBlank()
    {
        expectEmpty(allItems);
        expectEmpty({"txtTdb", "txth", "txtSpVol"});
        EXPECT_EQ(buttonStates(), ButtonOutcome(expected().buttons.size(), '-'));
    }
};

RUN_ON_EVERY_PANEL(PanelLook);

TEST_P(PanelLook, OpensBlankWithAllButtonsOffAtTheDryBulb)
{
    open();
    EXPECT_EQ(user.window(), expected().form);
    expectBlank();
    EXPECT_EQ(focusAtOpening(), "txtTdb");
}

TEST_P(PanelLook, ShowsItsCaptionsInEnglishUnits)
{
    open();
    EXPECT_EQ(user.title(), expected().title.english);
    expectCaptions(expected().labels);
    expectCaptions(expected().frames);
    expectCaptions(expected().buttons);
    for (const UnitCaption& unit : unitCaptions)
        EXPECT_EQ(user.text(unit.control), unit.english) << unit.control;
    EXPECT_EQ(user.text("lblW2"), englishHumidityUnit);
    EXPECT_TRUE(user.isEnabled("txtGrains"));
    EXPECT_EQ(back("txtGrains"), QColor(128, 255, 128));
    for (const char* label : {"lblTwb2", "lblRH2", "lblDewPt2", "lblW2", "lblGrains2"})
        expectNoWarning(label, user.text(label));
}

TEST_P(PanelLook, ShowsItsCaptionsInMetricUnits)
{
    open(true);
    EXPECT_EQ(user.title(), expected().title.metric);
    for (const auto& [label, caption] : expected().labels)
        EXPECT_EQ(user.text(label), label == "lblGrains1" ? "  " : caption) << label;
    expectCaptions(expected().frames);
    for (const UnitCaption& unit : unitCaptions)
        EXPECT_EQ(user.text(unit.control), unit.metric) << unit.control;
    EXPECT_EQ(user.text("lblW2"), expected().metricHumidityUnit);
    EXPECT_FALSE(user.isEnabled("txtGrains"));
    EXPECT_EQ(back("txtGrains"), QColor(192, 192, 192));
    for (const char* label : {"lblTwb2", "lblRH2", "lblDewPt2", "lblW2", "lblGrains2"})
        expectNoWarning(label, user.text(label));
}

TEST_P(PanelLook, TellsAssistiveTechnologyEachFieldsNameAndUnit)
{
    open();
    expectSpoken({{"txtTdb", "Dry bulb temperature, Deg. F"},
                  {"txtP", "Barometric pressure 14.696, psi"},
                  {"txtTwb", "Wet bulb temperature, Deg. F"},
                  {"txttd", "Dew point temperature, Deg. F"},
                  {"txtRH", "Relative humidity, %"},
                  {"txtW", "Humidity ratio W, lb. water/lb. dry air"},
                  {"txtGrains", "Humidity ratio in grains, grains"},
                  {"txth", "Enthalpy, Btu/lb."},
                  {"txtSpVol", "Specific volume, ft3/lb."}});
}

TEST_P(PanelLook, TellsAssistiveTechnologyTheMetricUnits)
{
    open(true);
    expectSpoken({{"txtTdb", "Dry bulb temperature, Deg. C"},
                  {"txtP", "Barometric pressure 101.352, kPa"},
                  {"txtTwb", "Wet bulb temperature, Deg. C"},
                  {"txttd", "Dew point temperature, Deg. C"},
                  {"txtRH", "Relative humidity, %"},
                  {"txtW", "Humidity ratio W," + expected().metricHumidityUnit},
                  {"txth", "Enthalpy, kJ/kg"},
                  {"txtSpVol", "Specific volume, m3/kg dry air"}});
}

TEST_P(PanelLook, HoldsItsControlsInTheirFrames)
{
    open();
    const Names labels = namesOf(expected().labels);
    expectInside("Frame2", {labels[0], "txtTdb", "lblTdb2", labels[1], "txtP", "lblP2"});
    expectInside("Frame1", {labels.begin() + 2, labels.begin() + 7});
    expectInside("Frame1", allItems);
    expectInside("Frame1", {"lblTwb2", "lblDewPt2", "lblRH2", "lblW2", "lblGrains2"});
    expectInside("Frame3", {labels[7], "txth", "lblEnthalpy2", labels[8], "txtSpVol", "lblSpVol2"});
    expectInside("Frame5", namesOf(expected().buttons));
    for (const auto& [frame, caption] : expected().frames)
        EXPECT_TRUE(frame != "Frame6" || user.widget(frame)->findChildren<QWidget*>().isEmpty())
            << "a banner";
}

TEST_P(PanelLook, StandsInRowsWithTheButtonsAtTheRight)
{
    open();
    const Names labels = namesOf(expected().labels);
    expectFromTheTop({"txtTdb", "txtP"});
    expectFromTheTop(allItems);
    expectFromTheTop({labels.begin() + 2, labels.begin() + 7});
    expectFromTheTop({"lblTwb2", "lblDewPt2", "lblRH2", "lblW2", "lblGrains2"});
    expectFromTheTop({"txth", "txtSpVol"});
    expectFromTheTop(namesOf(expected().buttons));
    for (const char* left : {"Frame1", "Frame2", "Frame3"})
        EXPECT_LT(placeOf(left).right(), placeOf("Frame5").left()) << left;
}

TEST_P(PanelLook, LeadsByTabThroughTheEntriesAndTheButtonsAlone)
{
    open();
    for (const auto& [name, caption] : expected().buttons)
        user.widget(name)->setEnabled(true);
    Names wanted{"txtTdb"};
    std::ranges::copy(allItems, std::back_inserter(wanted));
    std::ranges::copy(namesOf(expected().buttons), std::back_inserter(wanted));
    EXPECT_EQ(tabStopsFrom("txtTdb"), wanted);
    EXPECT_EQ(HumiditySelector, "") << "moving there is no click";
}

TEST_P(PanelLook, ShowsItsMenus)
{
    open();
    Names onBar{"mnuFile=&File", "mnuMain1=&Main Menu", "mnuHelp1=&Help"};
    if (!expected().ownMenu.empty())
        onBar.insert(onBar.begin() + 2, expected().ownMenu);
    EXPECT_EQ(menu(), onBar);
    EXPECT_EQ(menu("mnuFile"), (Names{"mnuPrintDialog=&Print Results", "mnuSave=" + expected().saveCaption,
                                      "-", "mnuExit=E&xit"}));
    EXPECT_TRUE(user.menuEntry(expected().fileSeparator)->isSeparator());
    EXPECT_EQ(menu("mnuHelp1"), (Names{expected().helpEntry, "mnuHSearch=" + expected().searchCaption,
                                       "mnuAbout=&About Dunmoor"}));
    EXPECT_EQ(user.menuEntry("mnuHelp1")->menu()->actions().front()->shortcut(), QKeySequence(Qt::Key_F1));
    for (const char* entry : {"mnuPrintDialog", "mnuSave"})
        EXPECT_TRUE(user.menuEntry(entry)->isEnabled()) << entry;
}

TEST_P(PanelLook, StandsAQuarterDownInTheMiddleOfTheScreen)
{
    open();
    EXPECT_EQ(User::findWindow(expected().form)->size(), QSize(800, 660));
    expectAQuarterDownInTheMiddle();
}

TEST_P(PanelLook, LeavesForTheMainMenuByEveryWay)
{
    start();
    const std::function<void()> ways[] = {
        [this] { user.choose("mnuExit"); }, [this] { user.choose("mnuMain1"); },
        [this] { user.key(Qt::Key_M, Qt::AltModifier); }, [this] { user.closeWindow(); }};
    for (const auto& leave : ways) {
        user.click(expected().menuButton);
        EXPECT_TRUE(expected().isLoaded());
        EXPECT_FALSE(User::findWindow("MainForm")->isVisible());
        leave();
        EXPECT_EQ(user.window(), "MainForm");
        EXPECT_FALSE(expected().isLoaded());
    }
}

TEST_P(PanelLook, ComesBackBlankWithTheStateClearedOrNot)
{
    open();
    calculate("70", "txtRH", "50");
    AirVolume = 1234.0F;
    const double saturation = StatePoint.Pws.asDouble();
    user.choose("mnuMain1");
    EXPECT_EQ(StatePoint.Tdb, 70.0F);

    user.click(expected().menuButton);
    expectBlank();
    EXPECT_EQ(StatePoint.Tdb, expected().clearsState ? 0.0F : 70.0F);
    EXPECT_EQ(StatePoint.RH, expected().clearsState ? 0.0 : 0.5);
    EXPECT_EQ(StatePoint.Grains.kind() == NumberKind::Int16, expected().clearsState);
    EXPECT_EQ(AirVolume.kind() == NumberKind::Int16, expected().clearsState);
    EXPECT_EQ(StatePoint.Pws, saturation) << "the pressures of the last calculation stay";
}

TEST_P(PanelLook, LeavesTheCurrentFolderOrMakesItTheProgramsOwn)
{
    QDir::setCurrent("/");
    open();
    EXPECT_EQ(QDir::currentPath().toStdString(), expected().makesFolderCurrent ? ApplicationFolder() : "/");
}

TEST_P(PanelLook, ShowsThePressureOfTheOptionsAndCalculatesWithIt)
{
    store("Pressure_psi", "12.5");
    open();
    EXPECT_EQ(user.text("txtP"), "12.5");
    calculate("70", "txtRH", "50");
    EXPECT_EQ(StatePoint.P, 12.5);
}
