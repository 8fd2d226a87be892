// When the caller of a dialog goes on.

#include "tests/platform/forms/ModalForm.h"

#include <QTimer>

TEST_F(ModalForm, OpensAnotherOneAndWaitsForItInItsTurn)
{
    showCaller();
    form<FirstDialog>().btnFirst.onClick([] {
        form<SecondDialog>().ShowModal();
        calls.push_back("the first dialog goes on");
    });
    user.inDialog("FirstDialog", [this] {
        user.inDialog("SecondDialog", [this] {
            EXPECT_EQ(user.window(), "SecondDialog");
            user.closeWindow();
        });
        user.click("btnFirst");
        EXPECT_EQ(user.window(), "FirstDialog");
        user.closeWindow();
    });
    user.click("btnFirst");
    EXPECT_EQ(Only({"the first dialog goes on", "after"}), (Calls{"the first dialog goes on", "after"}));
    EXPECT_EQ(user.window(), "FirstScreen");
}

TEST_F(ModalForm, LetsItsCallerGoOnOnlyAfterADialogAboveIsClosedToo)
{
    showCaller();
    form<FirstDialog>().btnFirst.onClick([] {
        form<SecondDialog>().ShowModal();
        calls.push_back("the first dialog goes on");
    });
    user.inDialog("FirstDialog", [this] { user.click("btnFirst"); });
    user.inDialog("SecondDialog", [this] {
        form<FirstDialog>().Unload();
        comeToRest();
        EXPECT_EQ(user.window(), "SecondDialog") << "the upper dialog is still there";
        calls.push_back("closing the upper");
        user.closeWindow();
    });
    user.click("btnFirst");
    comeToRest();
    EXPECT_EQ(Only({"closing the upper", "the first dialog goes on", "after", "FirstDialog is destroyed"}),
              (Calls{"closing the upper", "the first dialog goes on", "after", "FirstDialog is destroyed"}));
}

TEST_F(ModalForm, ShowsAMessageBoxAboveItselfAndWaitsForIt)
{
    showCaller();
    form<FirstDialog>().btnFirst.onClick([] {
        MsgBox("Please input an atmospheric pressure");
        calls.push_back("read");
    });
    user.inDialog("FirstDialog", [this] {
        user.click("btnFirst");
        EXPECT_EQ(calls.back(), "read");
        EXPECT_EQ(user.window(), "FirstDialog");
        user.closeWindow();
    });
    user.click("btnFirst");
    EXPECT_EQ(user.messages.size(), 1U);
    EXPECT_EQ(Only({"read", "after"}), (Calls{"read", "after"}));
}

TEST_F(ModalForm, LetsItsCallerGoOnAlthoughTheCallersFormIsUnloadedMeanwhile)
{
    FirstScreen& caller = showCaller();
    user.inDialog("FirstDialog", [&caller] {
        caller.Unload();
        comeToRest();
        form<FirstDialog>().Hide();
    });
    calls.clear();
    user.click("btnFirst"); // writes into a field of the caller after the dialog is closed
    EXPECT_EQ(calls.back(), "after");
    EXPECT_FALSE(isLoaded<FirstScreen>());
    comeToRest();
    EXPECT_EQ(calls.back(), "FirstScreen is destroyed");
}

TEST_F(ModalForm, LetsItsCallerGoOnAtOnceWhenItHidesItselfInItsActivateHandler)
{
    showCaller();
    FirstDialog::life.activate = [] { form<FirstDialog>().Hide(); };
    user.click("btnFirst");
    EXPECT_EQ(calls.back(), "after");
    EXPECT_TRUE(isLoaded<FirstDialog>());
    EXPECT_EQ(user.window(), "FirstScreen");
}

TEST_F(ModalForm, LetsItsCallerGoOnAtOnceWhenItUnloadsItselfInItsActivateHandler)
{
    showCaller();
    FirstDialog::life.activate = [] {
        form<FirstDialog>().Unload();
        MsgBox("gone");
    };
    user.click("btnFirst");
    EXPECT_EQ(calls.back(), "after");
    EXPECT_FALSE(isLoaded<FirstDialog>());
}

TEST_F(ModalForm, LetsItsCallerGoOnAtOnceWhenItUnloadsItselfInItsLoadHandler)
{
    showCaller();
    FirstDialog::life.load = [] { form<FirstDialog>().Unload(); };
    user.click("btnFirst");
    EXPECT_EQ(calls.back(), "after");
    EXPECT_EQ(std::ranges::count(calls, "FirstDialog.Form_Activate"), 0);
}
