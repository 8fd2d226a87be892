// The keys of a form: Esc and F1.

#include "tests/platform/forms/TestForms.h"

#include <QTest>

class KeysOfAForm : public FormsTest
{
protected:
    /// Shows the first dialog, presses a key in its field, and hides it.
    void pressInDialog(Qt::Key key)
    {
        FirstDialog& dialog = form<FirstDialog>();
        dialog.btnSecond.onClick(Recorder("Second"));
        dialog.Show();
        QApplication::processEvents();
        dialog.txtFirst.takeFocus();
        calls.clear();
        user.key(key);
    }
};

TEST_F(KeysOfAForm, EscPressesTheCancelButton)
{
    form<FirstDialog>().setCancelButton(form<FirstDialog>().btnSecond);
    pressInDialog(Qt::Key_Escape);
    EXPECT_EQ(calls, Calls{"Second"});
    EXPECT_TRUE(form<FirstDialog>().isVisible());
}

TEST_F(KeysOfAForm, EscPressesNoDisabledCancelButton)
{
    form<FirstDialog>().setCancelButton(form<FirstDialog>().btnSecond);
    form<FirstDialog>().btnSecond.disable();
    pressInDialog(Qt::Key_Escape);
    EXPECT_TRUE(calls.empty());
}

TEST_F(KeysOfAForm, EscClosesAsTheCloseBoxDoes)
{
    form<FirstDialog>().closeOnEsc();
    pressInDialog(Qt::Key_Escape);
    EXPECT_EQ(Only({"FirstDialog.Form_QueryUnload 0", "FirstDialog.Form_Unload"}),
              (Calls{"FirstDialog.Form_QueryUnload 0", "FirstDialog.Form_Unload"}));
    EXPECT_FALSE(isLoaded<FirstDialog>());
}

TEST_F(KeysOfAForm, EscDoesNothingElsewhere)
{
    pressInDialog(Qt::Key_Escape);
    EXPECT_TRUE(calls.empty());
    EXPECT_TRUE(form<FirstDialog>().isVisible());
}

TEST_F(KeysOfAForm, F1RunsTheHelpHandler)
{
    form<FirstDialog>().onHelpKey(Recorder("help"));
    pressInDialog(Qt::Key_F1);
    EXPECT_EQ(calls, Calls{"help"});
}
