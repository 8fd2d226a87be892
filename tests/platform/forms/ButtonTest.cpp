// Buttons: mouse, keyboard, access key.

#include "tests/platform/forms/Buttons.h"

#include <QTest>

#include <set>

TEST_F(Buttons, AreClickedWithTheMouse)
{
    showRecordingScreen();
    user.click("btnFirst");
    EXPECT_EQ(calls, Calls{"First"});
}

TEST_F(Buttons, AreNotClickedWithTheRightButtonOfTheMouse)
{
    showRecordingScreen();
    QTest::mouseClick(user.widget("btnFirst"), Qt::RightButton);
    EXPECT_TRUE(calls.empty());
}

TEST_F(Buttons, AreNotClickedWhileDisabled)
{
    FirstScreen& screen = showRecordingScreen();
    screen.btnFirst.disable();
    user.click("btnFirst");
    screen.btnFirst.press();
    EXPECT_TRUE(calls.empty());
    screen.btnFirst.enable();
    user.click("btnFirst");
    EXPECT_EQ(calls, Calls{"First"});
}

TEST_F(Buttons, DoNothingWithoutAHandler)
{
    showFirstScreen();
    user.click("btnFirst");
    EXPECT_TRUE(calls.empty());
}

TEST_F(Buttons, ArePressedByEnterAndSpaceWhileTheyHaveTheFocus)
{
    FirstScreen& screen = showRecordingScreen();
    screen.btnSecond.takeFocus();
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space})
        user.key(key);
    EXPECT_EQ(calls, (Calls{"Second", "Second", "Second"}));
}

TEST_F(Buttons, ArePressedByTheirAccessKeyAtOnceAndTakeTheFocus)
{
    FirstScreen& screen = showRecordingScreen();
    screen.txtFirst.takeFocus();
    user.key(Qt::Key_S, Qt::AltModifier);
    EXPECT_EQ(calls, Calls{"Second"});
    EXPECT_EQ(user.focus(), "btnSecond");
}

TEST_F(Buttons, HaveTheFocusWhenTheHandlerOfTheirAccessKeyRuns)
{
    FirstScreen& screen = showFirstScreen();
    screen.btnFirst.onClick([this] { calls.push_back(user.focus()); });
    user.key(Qt::Key_F, Qt::AltModifier);
    EXPECT_EQ(calls, Calls{"btnFirst"});
}

TEST_F(Buttons, LeaveTheFocusWhereTheirHandlerPutsIt)
{
    FirstScreen& screen = showFirstScreen();
    screen.btnFirst.onClick([&screen] { screen.txtThird.takeFocus(); });
    user.key(Qt::Key_F, Qt::AltModifier);
    EXPECT_EQ(user.focus(), "txtThird");
    user.click("btnFirst");
    EXPECT_EQ(user.focus(), "txtThird");
}

TEST_F(Buttons, FollowTheAccessKeyOfANewCaption)
{
    FirstScreen& screen = showRecordingScreen();
    screen.btnFirst.setCaption("&Go");
    user.key(Qt::Key_F, Qt::AltModifier);
    EXPECT_TRUE(calls.empty());
    user.key(Qt::Key_G, Qt::AltModifier);
    EXPECT_EQ(calls, Calls{"First"});
    EXPECT_EQ(screen.btnFirst.caption(), "&Go");
}

TEST_F(Buttons, TakeTheFocusInTurnAndArePressedByNoAccessKeyThatTwoOfThemHave)
{
    FirstScreen& screen = showRecordingScreen();
    screen.btnFirst.setCaption("&Calculate");
    screen.btnSecond.setCaption("&Cancel");
    user.key(Qt::Key_C, Qt::AltModifier);
    const std::string first = user.focus();
    user.key(Qt::Key_C, Qt::AltModifier);
    const std::string second = user.focus();
    user.key(Qt::Key_C, Qt::AltModifier);
    EXPECT_EQ((std::set{first, second}), (std::set<std::string>{"btnFirst", "btnSecond"}));
    EXPECT_EQ(user.focus(), first);
    EXPECT_TRUE(calls.empty());
}

TEST_F(Buttons, ArePressedByASharedAccessKeyWhileTheOtherOneIsDisabled)
{
    FirstScreen& screen = showRecordingScreen();
    screen.btnFirst.setCaption("&Calculate");
    screen.btnSecond.setCaption("&Cancel");
    screen.btnFirst.disable();
    user.key(Qt::Key_C, Qt::AltModifier);
    EXPECT_EQ(calls, Calls{"Second"});
}

TEST_F(Buttons, IgnoreTheirAccessKeyWhileDisabledOrHidden)
{
    FirstScreen& screen = showRecordingScreen();
    screen.txtFirst.takeFocus();
    screen.btnFirst.disable();
    screen.btnSecond.hide();
    user.key(Qt::Key_F, Qt::AltModifier);
    user.key(Qt::Key_S, Qt::AltModifier);
    EXPECT_TRUE(calls.empty());
    EXPECT_EQ(user.focus(), "txtFirst");
}

TEST_F(Buttons, OfAHiddenFormIgnoreTheirAccessKey)
{
    FirstScreen& screen = showRecordingScreen();
    screen.Hide();
    form<SecondScreen>().Show();
    user.key(Qt::Key_F, Qt::AltModifier);
    EXPECT_EQ(Only({"First"}), Calls{});
}

TEST_F(Buttons, PassTheFocusOnWhenTheyAreDisabledUnderIt)
{
    FirstScreen& screen = showRecordingScreen();
    screen.btnFirst.takeFocus();
    screen.btnFirst.disable();
    EXPECT_EQ(user.focus(), "btnSecond");
    EXPECT_TRUE(calls.empty());
}

TEST_F(Buttons, RunTheirHandlerForAPressByTheProgram)
{
    FirstScreen& screen = showRecordingScreen();
    screen.btnFirst.press();
    EXPECT_EQ(calls, Calls{"First"});
    form<SecondScreen>().btnFirst.onClick(Recorder("of a form that isn't shown"));
    form<SecondScreen>().btnFirst.press();
    EXPECT_EQ(calls.back(), "of a form that isn't shown");
}
