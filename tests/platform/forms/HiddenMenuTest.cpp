// Menus and entries that are disabled or hidden.

#include "tests/platform/forms/MenuScreen.h"

#include <QAction>
#include <QMenu>

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
    EXPECT_EQ(Only({"mnuContents"}), Calls{});
}
