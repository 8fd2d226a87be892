// KeyPress runs before a key edits the text, and may prevent the edit.

#include "platform/forms/LineEdit.h"
#include "tests/platform/forms/TestForms.h"

#include <QAction>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QDropEvent>
#include <QInputMethodEvent>
#include <QMenu>
#include <QMimeData>
#include <QTest>

using namespace forms;

class FieldKeys : public FormsTest
{
protected:
    /// A screen with "70" in its first field, which records the keys of its KeyPress handler.
    FirstScreen& show(bool swallowing)
    {
        FirstScreen& screen = showFirstScreen();
        screen.txtFirst.setText("70");
        screen.txtFirst.onKeyPress([this, swallowing](int& key) {
            keys.push_back(key);
            if (swallowing)
                key = Key::Swallowed;
        });
        screen.txtFirst.takeFocus();
        QApplication::clipboard()->setText("99");
        return screen;
    }
    FirstScreen& showSwallowing() { return show(true); }
    FirstScreen& showPassing() { return show(false); }

    LineEdit& edit() const { return *static_cast<LineEdit*>(user.widget("txtFirst")); }

    void drop(const QString& text)
    {
        QMimeData dragged;
        dragged.setText(text);
        QDragEnterEvent arrival(QPoint(5, 5), Qt::CopyAction, &dragged, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(&edit(), &arrival);
        QDropEvent event(QPointF(5, 5), Qt::CopyAction, &dragged, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(&edit(), &event);
    }

    void composeByInputMethod(const QString& text)
    {
        QInputMethodEvent event;
        event.setCommitString(text);
        QApplication::sendEvent(&edit(), &event);
    }

    /// A key that some keyboards have for an action and that is not a character.
    void pressActionKey(Qt::Key key)
    {
        QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier);
        QApplication::sendEvent(&edit(), &event);
    }

    /// A key as a keyboard sends it: its text may differ from its name.
    void pressKey(Qt::Key key, Qt::KeyboardModifiers modifiers, const QString& text)
    {
        QKeyEvent event(QEvent::KeyPress, key, modifiers, text);
        QApplication::sendEvent(&edit(), &event);
    }

    /// Opens the context menu and chooses an entry if it is enabled.
    void chooseFromContextMenu(const QString& caption)
    {
        QContextMenuEvent event(QContextMenuEvent::Mouse, {5, 5}, edit().mapToGlobal(QPoint(5, 5)));
        QApplication::sendEvent(&edit(), &event);
        auto* const menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        ASSERT_NE(menu, nullptr);
        EXPECT_FALSE(edit().isReadOnly()) << "the field is as before, while the menu is open too";
        for (QAction* entry : menu->actions()) {
            if (entry->text().remove('&').startsWith(caption))
                entry->trigger();
        }
        menu->close();
        comeToRest();
        EXPECT_EQ(edit().findChild<QMenu*>(), nullptr) << "no menu is left behind";
    }

    std::vector<int> keys;
};

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

TEST_F(FieldKeys, ThatAreSwallowedTypeNothing)
{
    showSwallowing().txtFirst.onChange(recorder("Change"));
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
