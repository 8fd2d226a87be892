// KeyPress may prevent the edit, and nothing else.

#include "tests/platform/forms/FieldKeys.h"

#include <QTest>

TEST_F(FieldKeys, ThatAreSwallowedTypeNothing)
{
    showSwallowing().txtFirst.onChange(Recorder("Change"));
    user.keys("1.5e-3 x");
    EXPECT_EQ(user.text("txtFirst"), "70");
    EXPECT_TRUE(calls.empty());
}

TEST_F(FieldKeys, ThatAreSwallowedDeleteNothing)
{
    showSwallowing();
    user.key(Qt::Key_End);
    user.key(Qt::Key_Backspace);
    user.key(Qt::Key_Backspace, Qt::ControlModifier);
    user.key(Qt::Key_Backspace, Qt::ShiftModifier);
    user.key(Qt::Key_Home);
    user.key(Qt::Key_Delete);
    user.key(Qt::Key_Delete, Qt::ControlModifier);
    user.key(Qt::Key_A, Qt::ControlModifier);
    user.key(Qt::Key_Backspace);
    user.key(Qt::Key_Delete);
    user.key(Qt::Key_K, Qt::ControlModifier);
    user.key(Qt::Key_U, Qt::ControlModifier);
    EXPECT_EQ(user.text("txtFirst"), "70");
}

TEST_F(FieldKeys, ThatAreSwallowedCutNothing)
{
    showSwallowing();
    user.key(Qt::Key_A, Qt::ControlModifier);
    user.key(Qt::Key_X, Qt::ControlModifier);
    user.key(Qt::Key_Delete, Qt::ShiftModifier);
    pressActionKey(Qt::Key_Cut);
    chooseFromContextMenu("Cut");
    chooseFromContextMenu("Delete");
    EXPECT_EQ(user.text("txtFirst"), "70");
    EXPECT_EQ(QApplication::clipboard()->text(), "99");
}

TEST_F(FieldKeys, ThatAreSwallowedPasteNothing)
{
    showSwallowing();
    user.key(Qt::Key_V, Qt::ControlModifier);
    user.key(Qt::Key_Insert, Qt::ShiftModifier);
    pressActionKey(Qt::Key_Paste);
    chooseFromContextMenu("Paste");
    drop("55");
    EXPECT_EQ(user.text("txtFirst"), "70");
}

TEST_F(FieldKeys, AskTheHandlerBeforeTheMiddleButtonPastesTheSelection)
{
    showSwallowing();
    user.middleClick("txtFirst");
    EXPECT_EQ(keys, std::vector<int>{Key::Paste});
    EXPECT_EQ(user.text("txtFirst"), "70");
}

TEST_F(FieldKeys, ThatAreSwallowedComposeNothing)
{
    showSwallowing();
    composeByInputMethod("\u00E9");
    EXPECT_EQ(user.text("txtFirst"), "70");
    EXPECT_EQ(edit().displayText(), "70");
    EXPECT_EQ(keys, std::vector{0xE9});
}

TEST_F(FieldKeys, ThatAreSwallowedLetAnInputMethodDeleteNothing)
{
    showSwallowing();
    user.key(Qt::Key_End);
    QInputMethodEvent event;
    event.setCommitString("", -1, 1);
    QApplication::sendEvent(&edit(), &event);
    EXPECT_EQ(user.text("txtFirst"), "70");
}

TEST_F(FieldKeys, ThatAreSwallowedUndoAndRedoNothing)
{
    FirstScreen& screen = showPassing();
    user.type("txtFirst", "8");
    user.keys("5");
    user.key(Qt::Key_Z, Qt::ControlModifier);
    ASSERT_EQ(user.text("txtFirst"), "70");
    screen.txtFirst.onKeyPress([](int& key) { key = Key::Swallowed; });
    user.key(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    pressActionKey(Qt::Key_Redo);
    EXPECT_EQ(user.text("txtFirst"), "70");

    screen.txtFirst.onKeyPress({});
    user.type("txtFirst", "8");
    screen.txtFirst.onKeyPress([](int& key) { key = Key::Swallowed; });
    user.key(Qt::Key_Z, Qt::ControlModifier);
    pressActionKey(Qt::Key_Undo);
    user.key(Qt::Key_Backspace, Qt::AltModifier);
    chooseFromContextMenu("Undo");
    EXPECT_EQ(user.text("txtFirst"), "8");
}

TEST_F(FieldKeys, ThatAreSwallowedUndoNothingWhereTheCommandComesWithoutACharacter)
{
    FirstScreen& screen = showPassing();
    user.type("txtFirst", "8");
    screen.txtFirst.onKeyPress([](int& key) { key = Key::Swallowed; });
    pressKey(Qt::Key_Z, Qt::ControlModifier, "");
    EXPECT_EQ(user.text("txtFirst"), "8");
    screen.txtFirst.onKeyPress({});
    pressKey(Qt::Key_Z, Qt::ControlModifier, "");
    ASSERT_EQ(user.text("txtFirst"), "70");
    screen.txtFirst.onKeyPress([](int& key) { key = Key::Swallowed; });
    pressKey(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier, "");
    EXPECT_EQ(user.text("txtFirst"), "70");
}

TEST_F(FieldKeys, ThatAreSwallowedDeleteNothingWhereTheCommandComesWithoutACharacter)
{
    showSwallowing();
    for (const Qt::Key key :
         {Qt::Key_Backspace, Qt::Key_Delete, Qt::Key_K, Qt::Key_U, Qt::Key_X, Qt::Key_V}) {
        user.key(Qt::Key_Home);
        pressKey(key, Qt::ControlModifier, "");
        user.key(Qt::Key_End);
        pressKey(key, Qt::ControlModifier, "");
        EXPECT_EQ(user.text("txtFirst"), "70") << QKeySequence(Qt::CTRL | key).toString().toStdString();
    }
}

TEST_F(FieldKeys, StillMoveSelectAndCopyInAFieldThatSwallows)
{
    showSwallowing();
    user.key(Qt::Key_End);
    EXPECT_EQ(edit().cursorPosition(), 2);
    user.key(Qt::Key_Left);
    EXPECT_EQ(edit().cursorPosition(), 1);
    user.key(Qt::Key_Home);
    user.key(Qt::Key_Right, Qt::ShiftModifier);
    EXPECT_EQ(edit().selectedText(), "7");
    user.key(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QApplication::clipboard()->text(), "7");
    user.key(Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(edit().selectedText(), "70");
    user.key(Qt::Key_Insert, Qt::ControlModifier);
    EXPECT_EQ(QApplication::clipboard()->text(), "70");
    EXPECT_TRUE(keys.empty()) << "such keys raise nothing";
}

TEST_F(FieldKeys, CopyByTheContextMenuOfAFieldThatSwallows)
{
    showSwallowing();
    user.key(Qt::Key_A, Qt::ControlModifier);
    chooseFromContextMenu("Copy");
    EXPECT_EQ(QApplication::clipboard()->text(), "70");
}

TEST_F(FieldKeys, SelectByTheMouseInAFieldThatSwallows)
{
    showSwallowing();
    QTest::mouseDClick(&edit(), Qt::LeftButton, Qt::NoModifier, {8, edit().height() / 2});
    EXPECT_EQ(edit().selectedText(), "70");
}
