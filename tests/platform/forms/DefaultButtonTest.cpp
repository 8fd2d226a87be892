// The button that Enter presses, and the focus that the program gives.

#include "tests/platform/forms/Buttons.h"

#include <QTest>

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
