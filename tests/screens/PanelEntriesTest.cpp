// What a user's keys and clicks do in the fields of each air-state panel, up to the calculation.

#include "tests/screens/PanelFixture.h"

#include <QApplication>
#include <QClipboard>
#include <QTest>

class PanelEntries : public PanelTest
{
protected:
    void showResults() { calculate("70", "txtRH", "50"); }
};

RUN_ON_EVERY_PANEL(PanelEntries);

TEST_P(PanelEntries, SelectAnItemByTypingWhereItHasAChangeHandler)
{
    open();
    for (const auto& [field, selector] : humidityItems) {
        const bool tells = std::ranges::count(expected().itemsWithChangeHandler, field) == 1;
        const ButtonOutcome unchanged(expected().buttons.size(), '.');
        expectButtons(
            tells ? expected().onChange : unchanged,
            [this, item = field] {
                user.type(item, "");
                HumiditySelector = "";
            },
            [this, item = field] { user.type(item, "5"); });
        EXPECT_EQ(HumiditySelector, tells ? selector : "") << field;
    }
    for (const std::string& field : allItems)
        EXPECT_EQ(user.text(field), "5") << "typing into one field empties no other";
}

TEST_P(PanelEntries, SelectAnItemByAClickAndEmptyTheOthers)
{
    open();
    for (const auto& [item, selector] : humidityItems) {
        std::string kept;
        expectButtons(
            expected().onClick,
            [&, field = item] {
                showResults();
                kept = user.text(field);
                HumiditySelector = "";
            },
            [this, field = item] { user.click(field); });
        EXPECT_EQ(HumiditySelector, selector);
        EXPECT_NE(kept, "");
        EXPECT_EQ(user.text("txtTdb"), "70");
        for (const std::string other : {"txtTwb", "txttd", "txtRH", "txtW", "txtGrains", "txth", "txtSpVol"})
            EXPECT_EQ(user.text(other), other == item ? kept : "") << item << " clicked: " << other;
    }
}

TEST_P(PanelEntries, SelectAnItemByAClickWhereAllAreBlank)
{
    open();
    for (const auto& [item, selector] : humidityItems) {
        expectButtons(
            expected().onClick, [] { HumiditySelector = ""; }, [this, field = item] { user.click(field); });
        EXPECT_EQ(HumiditySelector, selector);
    }
}

TEST_P(PanelEntries, TakeNoClickOnTheGrainsInMetric)
{
    open(true);
    user.click("txtGrains");
    EXPECT_EQ(HumiditySelector, "");
    EXPECT_FALSE(user.isEnabled("btnCALCULATE"));
}

TEST_P(PanelEntries, ChangeNoButtonByANewDryBulb)
{
    open();
    expectButtons(
        ButtonOutcome(expected().buttons.size(), '.'), [this] { user.type("txtTdb", ""); },
        [this] { user.type("txtTdb", "70"); });
    EXPECT_EQ(HumiditySelector, "");
}

TEST_P(PanelEntries, EmptyTheTwoResultsByAClickOnTheDryBulbAndNoItem)
{
    open();
    expectButtons(
        ButtonOutcome(expected().buttons.size(), '.'), [this] { showResults(); },
        [this] { user.click("txtTdb"); });
    expectEmpty({"txth", "txtSpVol"});
    EXPECT_EQ(user.text("txtTdb"), expected().emptiesDryBulbAtClick ? "" : "70");
    expectCaptions({{"txtRH", "50.0"}, {"txtTwb", "58.4"}, {"txttd", "50.6"}, {"txtW", "0.00778"}});
}

TEST_P(PanelEntries, LeadFromTheDryBulbToTheWetBulbByEnterWithTheShortcutsAlone)
{
    open();
    user.type("txtTdb", "70");
    user.key(Qt::Key_Return);
    EXPECT_EQ(user.focus(), expected().hasEntryShortcuts ? "txtTwb" : "txtTdb");
    EXPECT_EQ(user.text("txtTdb"), "70");
}

TEST_P(PanelEntries, SelectTwoItemsAlreadyWhenTheMouseGoesDownWithTheShortcutsAlone)
{
    open();
    for (const auto& [item, selector] : humidityItems) {
        const bool selects = expected().hasEntryShortcuts && (item == "txtRH" || item == "txtGrains");
        HumiditySelector = "";
        user.pressMouse(item);
        EXPECT_EQ(HumiditySelector, selects ? selector : "") << item;
        HumiditySelector = "";
        // Released elsewhere there is no click.
        QTest::mouseRelease(user.widget(item), Qt::LeftButton, Qt::NoModifier, QPoint(-50, -50));
        EXPECT_EQ(HumiditySelector, "") << item;
        user.pressMouse(item);
        user.releaseMouse(item);
        EXPECT_EQ(HumiditySelector, selector);
    }
}

TEST_P(PanelEntries, LetNothingBeTypedIntoTheResultsButBeCopied)
{
    open();
    showResults();
    for (const char* result : {"txth", "txtSpVol"}) {
        const std::string before = user.text(result);
        EXPECT_NE(before, "");
        QApplication::clipboard()->setText("99");
        user.click(result);
        EXPECT_EQ(user.focus(), result);
        user.keys("123abc");
        user.key(Qt::Key_Backspace);
        user.key(Qt::Key_Delete);
        user.key(Qt::Key_V, Qt::ControlModifier);
        user.key(Qt::Key_A, Qt::ControlModifier);
        user.key(Qt::Key_X, Qt::ControlModifier);
        EXPECT_EQ(user.text(result), before);
        user.key(Qt::Key_C, Qt::ControlModifier);
        EXPECT_EQ(QApplication::clipboard()->text().toStdString(), before);
    }
}
