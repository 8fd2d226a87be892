// Enter and Tab run the field's handler first, which may move the focus.

#include "tests/platform/forms/TestForms.h"

using namespace forms;

class FieldEnterAndTab : public FormsTest
{
protected:
    /// A screen with "70" in its first field, which accepts and records every key.
    FirstScreen& showPassing()
    {
        FirstScreen& screen = showFirstScreen();
        screen.txtFirst.setText("70");
        screen.txtFirst.onKeyPress([this](int& key) { keys.push_back(key); });
        screen.txtFirst.takeFocus();
        return screen;
    }

    std::vector<int> keys;
};

TEST_F(FieldEnterAndTab, TellTheHandlerOnceForATabThatHasNowhereElseToGo)
{
    FirstScreen& screen = showPassing();
    for (Control* other : std::initializer_list<Control*>{
             &screen.txtSecond, &screen.txtThird, &screen.btnFirst, &screen.btnSecond, &screen.Combo1})
        other->disable();
    user.key(Qt::Key_Tab);
    EXPECT_EQ(keys, std::vector{9});
    EXPECT_EQ(user.text("txtFirst"), "70");
}

TEST_F(FieldEnterAndTab, MoveTheFocusWhereTheHandlerOfEnterPutsIt)
{
    FirstScreen& screen = showPassing();
    screen.txtFirst.onKeyPress([&screen](int& key) {
        if (key == Key::Enter)
            screen.txtThird.takeFocus();
    });
    user.key(Qt::Key_Return);
    EXPECT_EQ(user.focus(), "txtThird");
    EXPECT_EQ(user.text("txtFirst"), "70");
}

TEST_F(FieldEnterAndTab, KeepTheFocusAtAnEnterThatTheHandlerLetsPass)
{
    showPassing();
    user.key(Qt::Key_Return);
    EXPECT_EQ(user.focus(), "txtFirst");
    EXPECT_EQ(user.text("txtFirst"), "70");
}

TEST_F(FieldEnterAndTab, LeaveTheFocusWhereTheHandlerOfTabPutIt)
{
    FirstScreen& screen = showPassing();
    screen.txtFirst.onKeyPress([&screen](int& key) {
        if (key == Key::Tab)
            screen.btnFirst.takeFocus();
    });
    user.key(Qt::Key_Tab);
    EXPECT_EQ(user.focus(), "btnFirst");
}

TEST_F(FieldEnterAndTab, GoOnToTheNextFieldAtATabThatTheHandlerLetsPass)
{
    showPassing();
    user.key(Qt::Key_Tab);
    EXPECT_EQ(user.focus(), "txtSecond");
    user.key(Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_EQ(user.focus(), "txtFirst");
}

TEST_F(FieldEnterAndTab, GoOnToTheNextFieldAtATabWithoutAHandler)
{
    showFirstScreen().txtFirst.takeFocus();
    user.key(Qt::Key_Tab);
    EXPECT_EQ(user.focus(), "txtSecond");
}

TEST_F(FieldEnterAndTab, GoOnToTheNextFieldFromOneThatSwallowsEveryKey)
{
    FirstScreen& screen = showFirstScreen();
    screen.txtFirst.onKeyPress([](int& key) { key = Key::Swallowed; });
    screen.txtFirst.takeFocus();
    user.key(Qt::Key_Tab);
    EXPECT_EQ(user.focus(), "txtSecond");
}

TEST_F(FieldEnterAndTab, PressNoDefaultButtonThatTheirHandlerTurnsOn)
{
    FirstScreen& screen = showPassing();
    screen.setDefaultButton(screen.btnFirst);
    screen.btnFirst.onClick(Recorder("pressed"));
    screen.btnFirst.disable();
    screen.txtFirst.onKeyPress([&screen](int& /*key*/) { screen.btnFirst.enable(); });
    user.key(Qt::Key_Return);
    EXPECT_TRUE(calls.empty()) << "one Enter is one thing";
    user.key(Qt::Key_Return);
    EXPECT_EQ(calls, Calls{"pressed"});
}

TEST_F(FieldEnterAndTab, MayShowAMessageBeforeTabGoesOn)
{
    FirstScreen& screen = showPassing();
    screen.txtFirst.onKeyPress([](int& /*key*/) { MsgBox("a message"); });
    user.key(Qt::Key_Tab);
    EXPECT_EQ(user.messages.size(), 1U);
    EXPECT_EQ(user.focus(), "txtSecond");
}
