// Menus, their entries, and commands directly on the menu bar.

#include "tests/platform/forms/TestForms.h"

#include <QAction>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QTest>

using namespace forms;

/// A screen with every kind of menu.
class MenuScreen : public Form
{
public:
    MenuScreen() : Form("MenuScreen", FormKind::Screen)
    {
        auto* const column = new QVBoxLayout(area());
        column->addWidget(txtFirst.widget());
        column->addWidget(btnHelp.widget());
        mnuFile.add(mnuSave);
        mnuFile.add(mnuSep);
        mnuFile.add(mnuExit);
        mnuHelp.add(mnuContents);
        addToMenuBar(mnuFile);
        addToMenuBar(mnuMain1);
        addToMenuBar(mnuHelp);
        mnuContents.setShortcut("F1");
        mnuSave.setShortcut("Ctrl+S");
        mnuSave.onClick(recorder("mnuSave"));
        mnuExit.onClick(recorder("mnuExit"));
        mnuMain1.onClick(recorder("mnuMain1"));
        mnuContents.onClick(recorder("mnuContents"));
    }

    TextField txtFirst{*this, "txtFirst"};
    Button btnHelp{*this, "btnHelp", "A button"};
    Menu mnuFile{*this, "mnuFile", "&File"};
    MenuCommand mnuSave{*this, "mnuSave", "&Save Results ..."};
    MenuSeparator mnuSep{*this, "mnuSep"};
    MenuCommand mnuExit{*this, "mnuExit", "E&xit"};
    MenuCommand mnuMain1{*this, "mnuMain1", "&Main Menu"};
    Menu mnuHelp{*this, "mnuHelp1", "&Help"};
    MenuCommand mnuContents{*this, "mnuContents", "&Contents"};
};

class Menus : public FormsTest
{
protected:
    static MenuScreen& show()
    {
        form<MenuScreen>().Show();
        QApplication::processEvents();
        form<MenuScreen>().txtFirst.takeFocus();
        return form<MenuScreen>();
    }

    static QMenuBar* bar() { return static_cast<QMainWindow*>(form<MenuScreen>().window())->menuBar(); }

    /// Opens a menu by its access key and presses another key.
    void pressInMenu(Qt::Key accessKey, Qt::Key key)
    {
        user.key(accessKey, Qt::AltModifier);
        QWidget* const open = QApplication::activePopupWidget();
        ASSERT_NE(open, nullptr) << "no menu has opened";
        QTest::keyClick(open, key);
    }
};

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

TEST_F(Menus, RunNoEntryThatIsDisabled)
{
    MenuScreen& screen = show();
    screen.mnuSave.disable();
    screen.mnuMain1.disable();
    user.choose("mnuSave");
    user.choose("mnuMain1");
    user.key(Qt::Key_S, Qt::ControlModifier);
    user.key(Qt::Key_M, Qt::AltModifier);
    EXPECT_TRUE(calls.empty());
    screen.mnuSave.enable();
    user.choose("mnuSave");
    EXPECT_EQ(calls, Calls{"mnuSave"});
}

TEST_F(Menus, RunNothingWhileTheWholeMenuIsDisabled)
{
    MenuScreen& screen = show();
    screen.mnuFile.disable();
    user.key(Qt::Key_F, Qt::AltModifier);
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
    user.key(Qt::Key_S, Qt::ControlModifier);
    EXPECT_TRUE(calls.empty());
    screen.mnuFile.enable();
    pressInMenu(Qt::Key_F, Qt::Key_S);
    EXPECT_EQ(calls, Calls{"mnuSave"});
}

TEST_F(Menus, AreOutOfReachWhileHidden)
{
    MenuScreen& screen = show();
    const QPoint place = bar()->actionGeometry(screen.mnuFile.action()).center();
    screen.mnuFile.hide();
    EXPECT_FALSE(bar()->actionGeometry(screen.mnuFile.action()).contains(place));
    user.key(Qt::Key_F, Qt::AltModifier);
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
    user.key(Qt::Key_S, Qt::ControlModifier);
    EXPECT_TRUE(calls.empty());
    screen.mnuFile.show();
    pressInMenu(Qt::Key_F, Qt::Key_S);
    EXPECT_EQ(calls, Calls{"mnuSave"});
}

TEST_F(Menus, HideSingleEntriesAndCommands)
{
    MenuScreen& screen = show();
    screen.mnuSave.hide();
    screen.mnuMain1.hide();
    EXPECT_TRUE(screen.mnuFile.action()->menu()->actionGeometry(screen.mnuSave.action()).isEmpty());
    user.key(Qt::Key_S, Qt::ControlModifier);
    user.key(Qt::Key_M, Qt::AltModifier);
    EXPECT_TRUE(calls.empty());
    screen.mnuSave.show();
    user.key(Qt::Key_S, Qt::ControlModifier);
    EXPECT_EQ(calls, Calls{"mnuSave"});
}

TEST_F(Menus, KeepAnEntryDisabledThatIsHiddenAndShownAgain)
{
    MenuScreen& screen = show();
    screen.mnuSave.disable();
    screen.mnuSave.hide();
    screen.mnuSave.show();
    user.choose("mnuSave");
    EXPECT_TRUE(calls.empty());
}

TEST_F(Menus, DoNotRunTheEntriesOfAHiddenForm)
{
    MenuScreen& screen = show();
    screen.Hide();
    form<SecondScreen>().Show();
    user.key(Qt::Key_F1);
    EXPECT_EQ(only({"mnuContents"}), Calls{});
}

TEST_F(Menus, TakeTurnsWithAButtonOfTheSameAccessKey)
{
    MenuScreen& screen = show();
    screen.btnHelp.setCaption("&Heating Load ");
    screen.btnHelp.onClick(recorder("btnHelp"));
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
