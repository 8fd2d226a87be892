// KeyPress runs before a key edits the text.

#include "tests/platform/forms/FieldKeys.h"

TEST_F(FieldKeys, TellTheHandlerTheirCharacters)
{
    showPassing();
    user.keys("7.");
    user.key(Qt::Key_Backspace);
    user.key(Qt::Key_Escape);
    user.key(Qt::Key_Space);
    user.keys("A\u00B0");
    EXPECT_EQ(keys, (std::vector<int>{'7', '.', 8, 27, 32, 'A', 0xB0}));
}

TEST_F(FieldKeys, TellTheHandlerThirteenForBothEnterKeys)
{
    showPassing();
    user.key(Qt::Key_Return);
    user.key(Qt::Key_Enter, Qt::KeypadModifier);
    EXPECT_EQ(keys, (std::vector{13, 13}));
}

TEST_F(FieldKeys, TellTheHandlerNineForTab)
{
    showPassing();
    user.key(Qt::Key_Tab);
    EXPECT_EQ(keys, std::vector{9});
}

TEST_F(FieldKeys, EditTheTextThatTheHandlerLetsPass)
{
    showPassing();
    user.type("txtFirst", "8");
    EXPECT_EQ(user.text("txtFirst"), "8");
    user.key(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(user.text("txtFirst"), "899");
    user.key(Qt::Key_Backspace);
    EXPECT_EQ(user.text("txtFirst"), "89");
    user.key(Qt::Key_Home);
    user.key(Qt::Key_Delete);
    EXPECT_EQ(user.text("txtFirst"), "9");
    composeByInputMethod("\u00B0");
    EXPECT_EQ(user.text("txtFirst"), "\u00B09");
    user.key(Qt::Key_A, Qt::ControlModifier);
    user.key(Qt::Key_X, Qt::ControlModifier);
    EXPECT_EQ(user.text("txtFirst"), "");
    drop("55");
    EXPECT_EQ(user.text("txtFirst"), "55");
    chooseFromContextMenu("Paste");
    EXPECT_NE(user.text("txtFirst").find("\u00B09"), std::string::npos) << "what was cut";
}

TEST_F(FieldKeys, RunTheHandlerBeforeTheTextChanges)
{
    FirstScreen& screen = showPassing();
    screen.txtFirst.onKeyPress(
        [&screen](int& /*key*/) { calls.push_back("key at " + screen.txtFirst.text()); });
    screen.txtFirst.onChange([&screen] { calls.push_back("change to " + screen.txtFirst.text()); });
    user.type("txtFirst", "8");
    EXPECT_EQ(calls, (Calls{"key at 70", "change to 8"}));
}

TEST_F(FieldKeys, DoNothingWithCtrlAltOrMetaAndALetterThatIsNoCommand)
{
    showPassing();
    for (const Qt::KeyboardModifiers held :
         {Qt::KeyboardModifiers(Qt::AltModifier), Qt::AltModifier | Qt::ShiftModifier,
          Qt::KeyboardModifiers(Qt::ControlModifier), Qt::ControlModifier | Qt::ShiftModifier,
          Qt::KeyboardModifiers(Qt::MetaModifier),
          Qt::MetaModifier | Qt::ControlModifier | Qt::AltModifier}) {
        pressKey(Qt::Key_J, held, "j");
        pressKey(Qt::Key_5, held, "5");
        pressKey(Qt::Key_M, held, "\r"); // some systems send this for Ctrl+M; it is not Enter
    }
    EXPECT_EQ(user.text("txtFirst"), "70");
    EXPECT_TRUE(keys.empty());
}

TEST_F(FieldKeys, TypeWithAltGrHoweverTheSystemReportsIt)
{
    showPassing();
    user.type("txtFirst", "");
    keys.clear();
    pressKey(Qt::Key_5, Qt::NoModifier, "\u00BD");
    pressKey(Qt::Key_5, Qt::GroupSwitchModifier, "\u00BC");
    pressKey(Qt::Key_5, Qt::ControlModifier | Qt::AltModifier, "\u00BE");
    pressKey(Qt::Key_J, Qt::ControlModifier | Qt::AltModifier, "\n"); // Ctrl+Alt that is not AltGr
    EXPECT_EQ(user.text("txtFirst"), "\u00BD\u00BC\u00BE");
    EXPECT_EQ(keys, (std::vector{0xBD, 0xBC, 0xBE}));
}

TEST_F(FieldKeys, LeaveToTheWindowWhatEditsNothing)
{
    showPassing();
    QKeyEvent event(QEvent::KeyPress, Qt::Key_Z, Qt::AltModifier, "z");
    QApplication::sendEvent(&edit(), &event);
    EXPECT_FALSE(event.isAccepted());
}

TEST_F(FieldKeys, RaiseNothingInADisabledField)
{
    FirstScreen& screen = showSwallowing();
    screen.txtFirst.disable();
    EXPECT_EQ(user.focus(), "txtSecond") << "it loses the focus, too";
    user.keys("8");
    EXPECT_TRUE(keys.empty());
    EXPECT_EQ(screen.txtFirst.text(), "70");
    EXPECT_EQ(screen.txtSecond.text(), "8");
}

TEST_F(FieldKeys, RaiseNothingForAWriteOfTheProgram)
{
    FirstScreen& screen = showSwallowing();
    screen.txtFirst.setText("80");
    EXPECT_TRUE(keys.empty());
    EXPECT_EQ(user.text("txtFirst"), "80") << "a field that swallows keys is filled by the program";
}

TEST_F(FieldKeys, RaiseNothingForFunctionKeysAndModifiers)
{
    showSwallowing();
    for (const Qt::Key key : {Qt::Key_F1, Qt::Key_F2, Qt::Key_Shift, Qt::Key_Control, Qt::Key_Alt, Qt::Key_Up,
                              Qt::Key_PageDown, Qt::Key_Insert})
        user.key(key);
    EXPECT_TRUE(keys.empty());
}

TEST_F(FieldKeys, MayChangeTheFieldBeforeTheKeyDoes)
{
    FirstScreen& screen = showPassing();
    screen.txtFirst.onKeyPress([&screen](int& /*key*/) { screen.txtFirst.clear(); });
    user.key(Qt::Key_8);
    EXPECT_EQ(user.text("txtFirst"), "8");
}
