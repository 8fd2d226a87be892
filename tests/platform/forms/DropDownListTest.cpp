// A list of fixed entries raises Click for every choice.

#include "tests/platform/forms/TestForms.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QTest>

using namespace forms;

class Lists : public FormsTest
{
protected:
    /// A screen with a list of two entries, which records the choices.
    static FirstScreen& show()
    {
        FirstScreen& screen = showFirstScreen();
        screen.Combo1.onClick([&screen] { calls.push_back(screen.Combo1.text()); });
        screen.Combo1.addItem("English, I-P");
        screen.Combo1.addItem("Metric, SI");
        return screen;
    }

    /// Counts how often the list is drawn.
    class Drawings : public QObject
    {
    public:
        explicit Drawings(const Control& watched) { watched.widget()->installEventFilter(this); }
        bool eventFilter(QObject* /*watched*/, QEvent* event) override
        {
            count += event->type() == QEvent::Paint ? 1 : 0;
            return false;
        }
        int count = 0;
    };
};

TEST_F(Lists, HaveNoEntryChosenAtTheStart)
{
    FirstScreen& screen = show();
    EXPECT_EQ(screen.Combo1.text(), "");
    EXPECT_EQ(user.text("Combo1"), "");
}

TEST_F(Lists, RaiseNothingWhenEntriesAreAdded)
{
    show();
    EXPECT_TRUE(calls.empty());
}

TEST_F(Lists, KeepTheirEntriesInOrder)
{
    show();
    auto* const combo = qobject_cast<QComboBox*>(user.widget("Combo1"));
    ASSERT_EQ(combo->count(), 2);
    EXPECT_EQ(combo->itemText(0), "English, I-P");
    EXPECT_EQ(combo->itemText(1), "Metric, SI");
    EXPECT_FALSE(combo->isEditable());
}

TEST_F(Lists, RaiseClickInsideAChoiceOfTheProgram)
{
    FirstScreen& screen = show();
    screen.Combo1.select(1);
    calls.push_back("selected");
    EXPECT_EQ(calls, (Calls{"Metric, SI", "selected"}));
    EXPECT_EQ(user.text("Combo1"), "Metric, SI");
}

TEST_F(Lists, RaiseClickWhenTheProgramChoosesTheChosenEntryAgain)
{
    FirstScreen& screen = show();
    screen.Combo1.select(0);
    screen.Combo1.select(0);
    EXPECT_EQ(calls, (Calls{"English, I-P", "English, I-P"}));
}

TEST_F(Lists, AreDrawnAgainAfterAChoiceOfTheProgram)
{
    FirstScreen& screen = show();
    screen.Combo1.select(0);
    comeToRest();
    const Drawings drawings(screen.Combo1);
    screen.Combo1.select(1);
    comeToRest();
    EXPECT_GT(drawings.count, 0);
}

TEST_F(Lists, KeepTheChosenEntryWhenAnotherIsAdded)
{
    FirstScreen& screen = show();
    screen.Combo1.select(1);
    screen.Combo1.addItem("A third");
    EXPECT_EQ(screen.Combo1.text(), "Metric, SI");
    EXPECT_EQ(calls.size(), 1U);
}

TEST_F(Lists, RaiseOneClickForAChoiceFromTheOpenList)
{
    show();
    user.chooseFromList("Combo1", "Metric, SI");
    EXPECT_EQ(calls, Calls{"Metric, SI"});
    user.chooseFromList("Combo1", "English, I-P");
    EXPECT_EQ(calls, (Calls{"Metric, SI", "English, I-P"}));
}

TEST_F(Lists, RaiseClickWhenTheUserChoosesTheChosenEntryAgain)
{
    show();
    for (int turn = 0; turn < 3; ++turn)
        user.chooseFromList("Combo1", "Metric, SI");
    EXPECT_EQ(calls, (Calls{"Metric, SI", "Metric, SI", "Metric, SI"}));
}

TEST_F(Lists, RaiseOneClickForAChoiceByTheMouse)
{
    show();
    user.click("Combo1");
    QWidget* const open = QApplication::activePopupWidget();
    ASSERT_NE(open, nullptr);
    auto* const entries = open->findChild<QAbstractItemView*>();
    ASSERT_NE(entries, nullptr);
    const QPoint place = entries->visualRect(entries->model()->index(1, 0)).center();
    QTest::mouseMove(entries->viewport(), place);
    EXPECT_TRUE(QTest::qWaitFor([&] { // the list ignores releases that may belong to the opening click
        QTest::mouseClick(entries->viewport(), Qt::LeftButton, Qt::NoModifier, place);
        return QApplication::activePopupWidget() == nullptr;
    }));
    EXPECT_EQ(calls, Calls{"Metric, SI"});
}

TEST_F(Lists, RaiseOneClickForEachStepOfTheArrowKeys)
{
    FirstScreen& screen = show();
    screen.Combo1.takeFocus();
    user.key(Qt::Key_Down);
    user.key(Qt::Key_Down);
    user.key(Qt::Key_Down); // there is no third
    user.key(Qt::Key_Up);
    EXPECT_EQ(calls, (Calls{"English, I-P", "Metric, SI", "English, I-P"}));
}

TEST_F(Lists, RaiseOneClickForAnEntryFoundByItsFirstLetter)
{
    FirstScreen& screen = show();
    screen.Combo1.takeFocus();
    user.keys("m");
    EXPECT_EQ(calls, Calls{"Metric, SI"});
}

TEST_F(Lists, RaiseNothingWhenTheUserOpensAndLeavesThem)
{
    FirstScreen& screen = show();
    screen.Combo1.select(0);
    calls.clear();
    user.click("Combo1");
    QWidget* const open = QApplication::activePopupWidget();
    ASSERT_NE(open, nullptr);
    QTest::keyClick(open->focusWidget() != nullptr ? open->focusWidget() : open, Qt::Key_Escape);
    EXPECT_TRUE(calls.empty());
    EXPECT_EQ(screen.Combo1.text(), "English, I-P");
}

TEST_F(Lists, LetTheirHandlerChooseAnotherEntry)
{
    FirstScreen& screen = show();
    screen.Combo1.onClick([&screen] {
        calls.push_back(screen.Combo1.text());
        if (screen.Combo1.text() == "Metric, SI")
            screen.Combo1.select(0);
    });
    user.chooseFromList("Combo1", "Metric, SI");
    EXPECT_EQ(calls, (Calls{"Metric, SI", "English, I-P"}));
    user.chooseFromList("Combo1", "English, I-P");
    EXPECT_EQ(calls.back(), "English, I-P");
    EXPECT_EQ(calls.size(), 3U);
}

TEST_F(Lists, RaiseNothingWhileDisabled)
{
    FirstScreen& screen = show();
    screen.Combo1.disable();
    user.click("Combo1");
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
    EXPECT_TRUE(calls.empty());
}
