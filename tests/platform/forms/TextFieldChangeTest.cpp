// Change is raised immediately, inside the caller's write, when the text really changes.

#include "tests/platform/forms/TestForms.h"

#include <QClipboard>

using namespace forms;

class FieldChange : public FormsTest
{
protected:
    /// Records the field's text when Change runs.
    static void recordChanges(TextField& field)
    {
        field.onChange(
            [&field] { calls.push_back(field.widget()->objectName().toStdString() + "=" + field.text()); });
    }

    static FirstScreen& showRecordingScreen()
    {
        FirstScreen& screen = showFirstScreen();
        recordChanges(screen.txtFirst);
        recordChanges(screen.txtSecond);
        return screen;
    }
};

TEST_F(FieldChange, IsRaisedInsideTheProgramsWrite)
{
    FirstScreen& screen = showRecordingScreen();
    screen.txtFirst.setText("70");
    calls.push_back("written");
    EXPECT_EQ(calls, (Calls{"txtFirst=70", "written"}));
}

TEST_F(FieldChange, IsNotRaisedByAWriteOfTheSameText)
{
    FirstScreen& screen = showRecordingScreen();
    screen.txtFirst.clear();
    screen.txtFirst.setText("");
    screen.txtFirst.setText("70");
    screen.txtFirst.setText("70");
    EXPECT_EQ(calls, Calls{"txtFirst=70"});
}

TEST_F(FieldChange, IsRaisedByEmptyingAField)
{
    FirstScreen& screen = showRecordingScreen();
    screen.txtFirst.setText("70");
    screen.txtFirst.clear();
    EXPECT_EQ(calls, (Calls{"txtFirst=70", "txtFirst="}));
    EXPECT_TRUE(screen.txtFirst.isEmpty());
}

TEST_F(FieldChange, SeesADifferenceOfBlanksAndOfZeros)
{
    FirstScreen& screen = showRecordingScreen();
    for (const char* text : {"70", "70 ", " 70", "70.0"})
        screen.txtFirst.setText(text);
    EXPECT_EQ(calls, (Calls{"txtFirst=70", "txtFirst=70 ", "txtFirst= 70", "txtFirst=70.0"}));
}

TEST_F(FieldChange, IsRaisedBeforeTheNextStatementOfAHandlerThatWrites)
{
    FirstScreen& screen = showRecordingScreen();
    screen.btnFirst.onClick([&screen] {
        screen.txtFirst.setText("1");
        calls.push_back("between");
        screen.txtSecond.setText("2");
        calls.push_back("after");
    });
    user.click("btnFirst");
    EXPECT_EQ(calls, (Calls{"txtFirst=1", "between", "txtSecond=2", "after"}));
}

TEST_F(FieldChange, IsRaisedInsideAnotherFieldsChange)
{
    FirstScreen& screen = showRecordingScreen();
    screen.txtFirst.onChange([&screen] {
        calls.push_back("first begins");
        screen.txtSecond.setText(screen.txtFirst.text());
        calls.push_back("first ends");
    });
    screen.txtFirst.takeFocus();
    user.keys("7");
    EXPECT_EQ(calls, (Calls{"first begins", "txtSecond=7", "first ends"}));
}

TEST_F(FieldChange, IsRaisedAgainWhenItsOwnHandlerWrites)
{
    FirstScreen& screen = showRecordingScreen();
    screen.txtFirst.onChange([&screen] {
        calls.push_back(screen.txtFirst.text());
        screen.txtFirst.setText("70");
    });
    screen.txtFirst.setText("1");
    EXPECT_EQ(calls, (Calls{"1", "70"}));
}

TEST_F(FieldChange, IsRaisedKeyByKey)
{
    FirstScreen& screen = showRecordingScreen();
    screen.txtFirst.takeFocus();
    user.keys("70.5");
    user.key(Qt::Key_Backspace);
    EXPECT_EQ(calls, (Calls{"txtFirst=7", "txtFirst=70", "txtFirst=70.", "txtFirst=70.5", "txtFirst=70."}));
}

TEST_F(FieldChange, IsNotRaisedByKeysThatChangeNothing)
{
    FirstScreen& screen = showFirstScreen();
    screen.txtFirst.setText("70");
    recordChanges(screen.txtFirst);
    screen.txtFirst.takeFocus();
    user.key(Qt::Key_End);
    for (const Qt::Key harmless : {Qt::Key_Delete, Qt::Key_Left, Qt::Key_Home, Qt::Key_Backspace, Qt::Key_F2})
        harmless == Qt::Key_Left ? user.key(harmless, Qt::ShiftModifier) : user.key(harmless);
    user.key(Qt::Key_C, Qt::ControlModifier);
    EXPECT_TRUE(calls.empty());
}

TEST_F(FieldChange, IsRaisedOnceByAKeyOverASelection)
{
    FirstScreen& screen = showFirstScreen();
    screen.txtFirst.setText("70");
    recordChanges(screen.txtFirst);
    user.type("txtFirst", "8");
    EXPECT_EQ(calls, Calls{"txtFirst=8"});
}

TEST_F(FieldChange, IsNotRaisedByAKeyThatPutsTheSameTextInPlaceOfTheSelected)
{
    FirstScreen& screen = showFirstScreen();
    screen.txtFirst.setText("7");
    recordChanges(screen.txtFirst);
    user.type("txtFirst", "7");
    EXPECT_TRUE(calls.empty());
}

TEST_F(FieldChange, IsRaisedByCutPasteUndoAndRedo)
{
    FirstScreen& screen = showRecordingScreen();
    user.type("txtFirst", "7");
    user.key(Qt::Key_A, Qt::ControlModifier);
    user.key(Qt::Key_X, Qt::ControlModifier);
    user.key(Qt::Key_V, Qt::ControlModifier);
    user.key(Qt::Key_V, Qt::ControlModifier);
    user.key(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(calls, (Calls{"txtFirst=7", "txtFirst=", "txtFirst=7", "txtFirst=77", "txtFirst=7"}));
    EXPECT_EQ(screen.txtFirst.text(), "7");
}

TEST_F(FieldChange, IsRaisedByAWriteToADisabledField)
{
    FirstScreen& screen = showRecordingScreen();
    screen.txtFirst.disable();
    screen.txtFirst.setText("70");
    EXPECT_EQ(calls, Calls{"txtFirst=70"});
}

TEST_F(FieldChange, IsRaisedByAWriteToAHiddenField)
{
    FirstScreen& screen = showRecordingScreen();
    screen.txtFirst.hide();
    screen.txtFirst.setText("70");
    EXPECT_EQ(calls, Calls{"txtFirst=70"});
}

TEST_F(FieldChange, IsRaisedByAWriteToAFormThatIsNotShown)
{
    recordChanges(form<SecondScreen>().txtFirst);
    calls.clear();
    form<SecondScreen>().txtFirst.setText("70");
    EXPECT_EQ(calls, Calls{"txtFirst=70"});
}

TEST_F(FieldChange, IsRaisedByAWriteInTheLoadHandler)
{
    FirstScreen::life.load = [] {
        recordChanges(form<FirstScreen>().txtFirst);
        form<FirstScreen>().txtFirst.setText("70");
        calls.push_back("loaded");
    };
    form<FirstScreen>();
    EXPECT_EQ(calls, (Calls{"FirstScreen.Form_Load", "txtFirst=70", "loaded"}));
}

TEST_F(FieldChange, ShowsTheTextAsItWasWritten)
{
    FirstScreen& screen = showFirstScreen();
    for (const char* text : {" 70 ", "70\u00B0", "<b>70</b>", "a&b", "1,234.5"}) {
        screen.txtFirst.setText(text);
        EXPECT_EQ(screen.txtFirst.text(), text);
        EXPECT_EQ(user.text("txtFirst"), text);
    }
}
