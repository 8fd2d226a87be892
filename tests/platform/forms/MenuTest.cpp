// Menus, their entries, and commands directly on the menu bar.

#include "tests/platform/forms/MenuScreen.h"

#include <QAction>
#include <QMenu>

TEST_F(Menus, RunTheCommandThatIsChosen)
{
    show();
    user.choose("mnuSave");
    user.choose("mnuContents");
    user.choose("mnuMain1");
    EXPECT_EQ(calls, (Calls{"mnuSave", "mnuContents", "mnuMain1"}));
}

TEST_F(Menus, StandOnTheBarInTheOrderTheyWereAdded)
{
    show();
    Calls names;
    for (const QAction* entry : bar()->actions())
        names.push_back(entry->objectName().toStdString());
    EXPECT_EQ(names, (Calls{"mnuFile", "mnuMain1", "mnuHelp1"}));
}

TEST_F(Menus, KeepTheirEntriesAndSeparatorsInOrderAndByName)
{
    MenuScreen& screen = show();
    const QList<QAction*> entries = screen.mnuFile.action()->menu()->actions();
    ASSERT_EQ(entries.size(), 3);
    EXPECT_EQ(entries[0]->objectName(), "mnuSave");
    EXPECT_EQ(entries[1]->objectName(), "mnuSep");
    EXPECT_TRUE(entries[1]->isSeparator());
    EXPECT_EQ(entries[2]->objectName(), "mnuExit");
    EXPECT_EQ(entries[2]->text(), "E&xit");
    EXPECT_EQ(screen.mnuFile.action()->menu()->objectName(), "mnuFile");
    EXPECT_EQ(screen.mnuFile.action()->menu()->title(), "&File");
}

TEST_F(Menus, OpenByTheirAccessKeyAndRunByThatOfTheEntry)
{
    show();
    pressInMenu(Qt::Key_F, Qt::Key_X);
    EXPECT_EQ(calls, Calls{"mnuExit"});
}

TEST_F(Menus, RunAnEntryByTheArrowsAndEnter)
{
    show();
    user.key(Qt::Key_F, Qt::AltModifier);
    QWidget* const open = QApplication::activePopupWidget();
    ASSERT_NE(open, nullptr);
    QTest::keyClick(open, Qt::Key_Down);
    QTest::keyClick(open, Qt::Key_Return);
    EXPECT_EQ(calls, Calls{"mnuExit"}) << "the separator is stepped over";
}

TEST_F(Menus, RunACommandOnTheBarByItsAccessKeyOnce)
{
    show();
    user.key(Qt::Key_M, Qt::AltModifier);
    EXPECT_EQ(calls, Calls{"mnuMain1"});
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
}

TEST_F(Menus, RunAnEntryByItsShortcut)
{
    show();
    user.key(Qt::Key_F1);
    user.key(Qt::Key_S, Qt::ControlModifier);
    EXPECT_EQ(calls, (Calls{"mnuContents", "mnuSave"}));
    EXPECT_EQ(user.text("txtFirst"), "");
}

TEST_F(Menus, AreNotEnteredByTheTabKey)
{
    MenuScreen& screen = show();
    screen.btnHelp.takeFocus();
    user.key(Qt::Key_Tab);
    EXPECT_EQ(user.focus(), "txtFirst");
}

TEST_F(Menus, TakeTurnsWithAButtonOfTheSameAccessKey)
{
    MenuScreen& screen = show();
    screen.btnHelp.setCaption("&Heating Load ");
    screen.btnHelp.onClick(Recorder("btnHelp"));
    Calls reached;
    for (int turn = 0; turn < 2; ++turn) {
        user.key(Qt::Key_H, Qt::AltModifier);
        if (QWidget* const open = QApplication::activePopupWidget()) {
            reached.push_back("menu");
            open->close();
            screen.Show(); // the offscreen platform leaves the window inactive after a menu closes
            screen.txtFirst.takeFocus();
        } else
            reached.push_back(user.focus());
    }
    std::ranges::sort(reached);
    EXPECT_EQ(reached, (Calls{"btnHelp", "menu"}));
    EXPECT_TRUE(calls.empty()) << "the button is focused, not pressed";
}

TEST_F(Menus, ReturnTheFocusToTheFieldAfterACommand)
{
    show();
    pressInMenu(Qt::Key_F, Qt::Key_S);
    user.keys("7");
    EXPECT_EQ(user.text("txtFirst"), "7");
}

TEST_F(Menus, DoNothingForACommandWithoutAHandler)
{
    MenuScreen& screen = show();
    screen.mnuSave.onClick({});
    user.choose("mnuSave");
    EXPECT_TRUE(calls.empty());
}
