// Buttons: mouse, keyboard, access key, default button.

#include "tests/platform/forms/TestForms.h"

#include <QTest>

#include <set>

using namespace forms;

class Buttons : public FormsTest
{
protected:
    static FirstScreen& showRecordingScreen()
    {
        FirstScreen& screen = showFirstScreen();
        screen.btnFirst.onClick(recorder("First"));
        screen.btnSecond.onClick(recorder("Second"));
        return screen;
    }

    static FirstScreen& showWithDefault()
    {
        FirstScreen& screen = showRecordingScreen();
        screen.setDefaultButton(screen.btnFirst);
        screen.txtFirst.onKeyPress([](int& key) { calls.push_back("key " + std::to_string(key)); });
        screen.txtFirst.takeFocus();
        return screen;
    }
};

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
    EXPECT_EQ(only({"First"}), Calls{});
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
    form<SecondScreen>().btnFirst.onClick(recorder("of a form that isn't shown"));
    form<SecondScreen>().btnFirst.press();
    EXPECT_EQ(calls.back(), "of a form that isn't shown");
}

using DefaultButton = Buttons;

TEST_F(DefaultButton, IsPressedByEnterInAFieldInPlaceOfItsKeyPress)
{
    showWithDefault();
    user.key(Qt::Key_Return);
    user.key(Qt::Key_Enter, Qt::KeypadModifier);
    EXPECT_EQ(calls, (Calls{"First", "First"}));
    EXPECT_EQ(user.focus(), "txtFirst");
}

TEST_F(DefaultButton, LeavesEnterToTheFieldWhileItIsDisabled)
{
    FirstScreen& screen = showWithDefault();
    screen.btnFirst.disable();
    user.key(Qt::Key_Return);
    user.key(Qt::Key_Enter, Qt::KeypadModifier);
    EXPECT_EQ(calls, (Calls{"key 13", "key 13"}));
}

TEST_F(DefaultButton, IsPressedByEnterInAFieldWithoutAHandler)
{
    FirstScreen& screen = showWithDefault();
    screen.txtSecond.takeFocus();
    user.key(Qt::Key_Return);
    EXPECT_EQ(calls, Calls{"First"});
}

TEST_F(DefaultButton, IsPressedByEnterInAList)
{
    FirstScreen& screen = showWithDefault();
    screen.Combo1.addItem("English, I-P");
    screen.Combo1.takeFocus();
    user.key(Qt::Key_Return);
    EXPECT_EQ(calls, Calls{"First"});
}

TEST_F(DefaultButton, IsPressedByEnterWhereNothingHasTheFocus)
{
    showWithDefault();
    QTest::keyClick(form<FirstScreen>().window(), Qt::Key_Return);
    EXPECT_EQ(calls, Calls{"First"});
}

TEST_F(DefaultButton, LeavesEnterToTheButtonThatHasTheFocus)
{
    FirstScreen& screen = showWithDefault();
    screen.btnSecond.takeFocus();
    user.key(Qt::Key_Return);
    EXPECT_EQ(calls, Calls{"Second"});
}

TEST_F(DefaultButton, IsPressedOnceByEnterOnItself)
{
    FirstScreen& screen = showWithDefault();
    screen.btnFirst.takeFocus();
    user.key(Qt::Key_Return);
    EXPECT_EQ(calls, Calls{"First"});
}

TEST_F(DefaultButton, IsNotPressedByTheSpaceBarOrTabInAField)
{
    showWithDefault();
    user.key(Qt::Key_Space);
    user.key(Qt::Key_Tab);
    EXPECT_EQ(calls, (Calls{"key 32", "key 9"}));
}

TEST_F(DefaultButton, IsMissedByEnterOnAFormWithoutOne)
{
    FirstScreen& screen = showRecordingScreen();
    screen.txtFirst.takeFocus();
    user.key(Qt::Key_Return);
    EXPECT_TRUE(calls.empty());
}

TEST_F(DefaultButton, MayHideItsDialogWhenPressedInAField)
{
    FirstDialog& dialog = form<FirstDialog>();
    dialog.setDefaultButton(dialog.btnFirst);
    dialog.btnFirst.onClick([&dialog] { dialog.Hide(); });
    user.inDialog("FirstDialog", [this] {
        user.type("txtFirst", "1200");
        user.key(Qt::Key_Return);
    });
    dialog.ShowModal();
    EXPECT_EQ(dialog.txtFirst.text(), "1200");
    EXPECT_FALSE(dialog.isVisible());
}

using FocusByTheProgram = FormsTest;

TEST_F(FocusByTheProgram, MovesAtOnce)
{
    FirstScreen& screen = showFirstScreen();
    screen.txtThird.takeFocus();
    EXPECT_EQ(user.focus(), "txtThird");
    screen.Combo1.takeFocus();
    EXPECT_EQ(user.focus(), "Combo1");
}

TEST_F(FocusByTheProgram, StaysAwayFromADisabledControl)
{
    FirstScreen& screen = showFirstScreen();
    screen.txtThird.disable();
    screen.txtFirst.takeFocus();
    screen.txtThird.takeFocus();
    EXPECT_EQ(user.focus(), "txtFirst");
}

TEST_F(FocusByTheProgram, WaitsOnAFormThatIsNotShownYet)
{
    form<FirstScreen>().txtThird.takeFocus();
    form<FirstScreen>().Show();
    EXPECT_EQ(user.focus(), "txtThird");
    user.keys("7");
    EXPECT_EQ(user.text("txtThird"), "7");
}

TEST_F(FocusByTheProgram, ReachesADialogWhenItActivates)
{
    FirstDialog::life.activate = [] { form<FirstDialog>().txtSecond.takeFocus(); };
    std::string focus;
    user.inDialog("FirstDialog", [this, &focus] {
        focus = user.focus();
        user.closeWindow();
    });
    form<FirstDialog>().ShowModal();
    EXPECT_EQ(focus, "txtSecond");
}
