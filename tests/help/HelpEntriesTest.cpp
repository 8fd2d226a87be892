// Every help entry of every form opens the real help file at its topic.

#include "chart/ChartWindow.h"
#include "tests/screens/CalculatorFixture.h"

#include <QDir>
#include <QTest>
#include <QTextBrowser>

namespace {

/// A help entry, and the user's way from the main menu to its form.
struct Row
{
    const char* form;
    const char* entry;
    const char* page;
};

void PrintTo(const Row& row, std::ostream* out) { *out << row.form << "." << row.entry; }

const Row rows[] = {
    {"MainForm", "mnuHSearch", "index.html"},
    {"AirPropertiesCalc", "mnuHelpAirPropCalc", "air-properties.html"},
    {"AirPropertiesCalc", "mnuHSearch", "air-properties.html"},
    {"Answers1", "mnuHContents", "air-properties.html"},
    {"MixedAir", "mnuHelpMixedAir", "mixed-air.html"},
    {"MixedAir", "mnuHSearch", "air-properties.html"},
    {"cfmForm", "mnuSearch", "cooling.html"},
    {"CoolingLoad1", "mnuHelpCooling", "cooling.html"},
    {"CoolingLoad1", "mnuHSearch", "air-properties.html"},
    {"HeatingLoad1", "mnuHelpHeat", "heating.html"},
    {"HeatingLoad1", "mnuHSearch", "air-properties.html"},
    {"Humid1", "mnuHelpHumidity", "humidification.html"},
    {"Humid1", "mnuHSearch", "air-properties.html"},
    {"humid2", "mnuHumid2Help", "humidification.html"},
    {"humid2", "mnuSearch", "air-properties.html"},
};

} // namespace

class HelpEntries : public CalculatorTest
{
protected:
    static std::string page()
    {
        const QWidget* const help = User::findWindow("HelpWindow");
        return help != nullptr && help->isVisible()
                   ? help->findChild<QTextBrowser*>("helpPage")->source().fileName().toStdString()
                   : "(no help)";
    }

    /// The page that an entry of the current form opens.
    std::string pageOf(const char* entry)
    {
        user.choose(entry);
        QApplication::processEvents();
        return page();
    }

    /// Opens a form. Runs `look` while a modal form is open.
    void see(const std::string& form, const std::function<void()>& look)
    {
        static const std::map<std::string, const char*> buttons{
            {"AirPropertiesCalc", "btnAirCalc"}, {"MixedAir", "btnMixedAir"},
            {"Answers1", "btnMixedAir"},         {"cfmForm", "btnMixedAir"},
            {"CoolingLoad1", "btnCooling"},      {"HeatingLoad1", "btnHeating"},
            {"Humid1", "btnHumidity"},           {"humid2", "btnHumidity"}};
        if (const auto button = buttons.find(form); button != buttons.end())
            user.click(button->second);
        if (form == "Answers1" || form == "cfmForm" || form == "humid2")
            calculate("70", "txtRH", "50");
        if (form == "Answers1") {
            answerVolume("btnSaveOSA", "1000");
            answerVolume("btnRA", "1000");
            user.click("btnMixedAir");
        }
        if (form == "cfmForm")
            lookAtDialog(form, look, "btnCancel", "btnSaveOSA");
        else if (form == "humid2")
            lookAtDialog(form, look, "btnOK", "btnHumidityDesired");
        else
            look();
    }

    void lookAtDialog(const std::string& form, const std::function<void()>& look, const char* closer,
                      const char* opener)
    {
        user.inDialog(form, [this, look, closer] {
            look();
            user.click(closer);
        });
        user.click(opener);
    }
};

class HelpEntry : public HelpEntries, public testing::WithParamInterface<Row>
{};

INSTANTIATE_TEST_SUITE_P(Of, HelpEntry, testing::ValuesIn(rows),
                         [](const auto& row) { return std::string(row.param.form) + "_" + row.param.entry; });

TEST_P(HelpEntry, OpensTheHelpAtItsTopic)
{
    MakeCurrentDirectory(ApplicationFolder());
    start();
    std::string opened;
    see(GetParam().form, [this, &opened] {
        EXPECT_EQ(user.window(), GetParam().form);
        opened = pageOf(GetParam().entry);
        EXPECT_EQ(user.window(), GetParam().form) << "the form goes on beside the help";
    });
    EXPECT_EQ(opened, GetParam().page);
    EXPECT_TRUE(user.messages.empty());
}

TEST_F(HelpEntries, OpenTheCoolingTopicByF1OnTheCoolingScreen)
{
    MakeCurrentDirectory(ApplicationFolder());
    start();
    user.click("btnCooling");
    user.key(Qt::Key_F1);
    QApplication::processEvents();
    EXPECT_EQ(page(), "cooling.html");
}

TEST_F(HelpEntries, SayThatTheFileIsNotFoundUntilTheAirPropertiesCalculatorWasOpened)
{
    QDir::setCurrent("/");
    start();
    EXPECT_EQ(pageOf("mnuHSearch"), "(no help)");
    ASSERT_EQ(user.messages.size(), 1U);
    EXPECT_EQ(user.messages[0].title, "Dunmoor");
    EXPECT_EQ(user.messages[0].text, "The help file dunmoor.chm was not found.\n\nIt was looked for in /.");
    EXPECT_EQ(user.window(), "MainForm");

    user.click("btnCooling");
    EXPECT_EQ(pageOf("mnuHelpCooling"), "(no help)") << "the other calculators don't change the folder";
    user.choose("mnuMain1");
    user.click("btnAirCalc");
    EXPECT_EQ(pageOf("mnuHelpAirPropCalc"), "air-properties.html");
    user.choose("mnuMain1");
    EXPECT_EQ(pageOf("mnuHSearch"), "index.html") << "the folder stays";
    EXPECT_EQ(user.messages.size(), 2U);
}

TEST_F(HelpEntries, OfTheChartsWindowOpenItsPage)
{
    start();
    form<chart::ChartWindow>().Show();
    QWidget* const window = User::findWindow("ChartWindow");
    QTest::keyClick(window, Qt::Key_F1);
    EXPECT_EQ(page(), "chart.html");
    User::findWindow("HelpWindow")->close();
    QApplication::processEvents();
    window->findChild<QAction*>("mnuHelpChart")->trigger();
    EXPECT_EQ(page(), "chart.html");
}
