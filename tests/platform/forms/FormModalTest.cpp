// Dialogs that a handler waits for.

#include "tests/platform/forms/TestForms.h"

#include <QTest>
#include <QTimer>
#include <QWindow>

using namespace forms;

class ModalForm : public FormsTest
{
protected:
    /// A first screen whose first button shows the first dialog and waits for it.
    static FirstScreen& showCaller()
    {
        FirstScreen& caller = showFirstScreen();
        caller.btnFirst.onClick([&caller] {
            calls.push_back("before");
            form<FirstDialog>().ShowModal();
            calls.push_back("after");
            caller.txtThird.setText("the caller goes on");
        });
        return caller;
    }

    /// A mouse click as the windowing system delivers it: a blocked window doesn't receive it.
    static void clickThroughTheSystem(Control& control)
    {
        QWidget* const target = control.widget();
        const QPoint place = target->mapTo(target->window(), target->rect().center());
        QTest::mouseClick(target->window()->windowHandle(), Qt::LeftButton, Qt::NoModifier, place);
    }
};

TEST_F(ModalForm, KeepsItsCallerWaitingUntilItHidesItself)
{
    showCaller();
    form<FirstDialog>().btnFirst.onClick([] {
        calls.push_back("OK");
        form<FirstDialog>().Hide();
    });
    calls.clear();
    user.inDialog("FirstDialog", [this] { user.click("btnFirst"); });
    user.click("btnFirst");
    EXPECT_EQ(calls, (Calls{"before", "FirstDialog.Form_Activate", "OK", "after"}));
    EXPECT_TRUE(isLoaded<FirstDialog>());
    EXPECT_FALSE(form<FirstDialog>().isVisible());
}

TEST_F(ModalForm, KeepsItsCallerWaitingUntilItIsUnloaded)
{
    showCaller();
    form<FirstDialog>().btnFirst.onClick([] { form<FirstDialog>().Unload(); });
    calls.clear();
    user.inDialog("FirstDialog", [this] { user.click("btnFirst"); });
    user.click("btnFirst");
    EXPECT_EQ(only({"before", "FirstDialog.Form_QueryUnload 1", "FirstDialog.Form_Unload", "after"}),
              (Calls{"before", "FirstDialog.Form_QueryUnload 1", "FirstDialog.Form_Unload", "after"}));
    EXPECT_FALSE(isLoaded<FirstDialog>());
}

TEST_F(ModalForm, KeepsItsCallerWaitingUntilItIsClosedByItsBox)
{
    showCaller();
    user.inDialog("FirstDialog", [this] { user.closeWindow(); });
    user.click("btnFirst");
    EXPECT_EQ(only({"before", "FirstDialog.Form_QueryUnload 0", "FirstDialog.Form_Unload", "after"}),
              (Calls{"before", "FirstDialog.Form_QueryUnload 0", "FirstDialog.Form_Unload", "after"}));
    EXPECT_FALSE(isLoaded<FirstDialog>());
}

TEST_F(ModalForm, ShowsItsFieldsAgainAfterItWasHidden)
{
    showCaller();
    form<FirstDialog>().btnFirst.onClick([] { form<FirstDialog>().Hide(); });
    user.inDialog("FirstDialog", [this] {
        user.type("txtFirst", "1200");
        user.click("btnFirst");
    });
    user.click("btnFirst");
    std::string shown;
    user.inDialog("FirstDialog", [this, &shown] {
        shown = user.text("txtFirst");
        user.click("btnFirst");
    });
    user.click("btnFirst");
    EXPECT_EQ(shown, "1200");
    EXPECT_EQ(std::ranges::count(calls, "FirstDialog.Form_Activate"), 2);
}

TEST_F(ModalForm, ComesBackBlankAfterItsCloseBox)
{
    showCaller();
    user.inDialog("FirstDialog", [this] {
        user.type("txtFirst", "1200");
        user.closeWindow();
    });
    user.click("btnFirst");
    std::string shown = "nothing seen";
    user.inDialog("FirstDialog", [this, &shown] {
        shown = user.text("txtFirst");
        user.closeWindow();
    });
    user.click("btnFirst");
    EXPECT_EQ(shown, "");
}

TEST_F(ModalForm, LetsNoOtherWindowTakeInput)
{
    FirstScreen& caller = showCaller();
    caller.btnSecond.onClick(recorder("second"));
    form<SecondScreen>().btnSecond.onClick(recorder("second of the other screen"));
    form<SecondScreen>().Show();
    calls.clear();

    user.inDialog("FirstDialog", [&caller] {
        clickThroughTheSystem(caller.btnSecond);
        clickThroughTheSystem(form<SecondScreen>().btnSecond);
        QTest::keyClick(caller.window()->windowHandle(), Qt::Key_S, Qt::AltModifier);
        comeToRest();
        calls.push_back("the other windows were clicked");
        form<FirstDialog>().Hide();
    });
    caller.btnFirst.press();
    EXPECT_EQ(calls, (Calls{"before", "FirstDialog.Form_Load", "FirstDialog.Form_Activate",
                            "the other windows were clicked", "after"}));

    calls.clear();
    clickThroughTheSystem(caller.btnSecond);
    clickThroughTheSystem(form<SecondScreen>().btnSecond);
    comeToRest();
    EXPECT_EQ(calls, (Calls{"second", "second of the other screen"})) << "they take input again";
}

TEST_F(ModalForm, TakesInputItself)
{
    FirstScreen& caller = showCaller();
    form<FirstDialog>().btnSecond.onClick([] { form<FirstDialog>().Hide(); });
    user.inDialog("FirstDialog", [] { clickThroughTheSystem(form<FirstDialog>().btnSecond); });
    caller.btnFirst.press();
    EXPECT_EQ(calls.back(), "after");
}

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
    EXPECT_EQ(only({"the first dialog goes on", "after"}), (Calls{"the first dialog goes on", "after"}));
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
    EXPECT_EQ(only({"closing the upper", "the first dialog goes on", "after", "FirstDialog is destroyed"}),
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
    EXPECT_EQ(only({"read", "after"}), (Calls{"read", "after"}));
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

TEST_F(ModalForm, TakesASecondModalShowWhileItIsWaitedForAsNothing)
{
    showCaller();
    user.inDialog("FirstDialog", [] {
        form<FirstDialog>().ShowModal();
        form<FirstDialog>().Hide();
    });
    user.click("btnFirst");
    EXPECT_EQ(std::ranges::count(calls, "after"), 1);
}

TEST_F(ModalForm, IsNotClosedByTheEscapeKey)
{
    showCaller();
    bool stillThere = false;
    user.inDialog("FirstDialog", [this, &stillThere] {
        user.key(Qt::Key_Escape);
        comeToRest();
        stillThere = form<FirstDialog>().isVisible();
        user.closeWindow();
    });
    user.click("btnFirst");
    EXPECT_TRUE(stillThere);
}

TEST_F(ModalForm, MayBeShownWithoutWaitingTheNextTime)
{
    FirstScreen& caller = showCaller();
    caller.btnSecond.onClick(recorder("second"));
    user.inDialog("FirstDialog", [] { form<FirstDialog>().Hide(); });
    user.click("btnFirst");
    form<FirstDialog>().Show();
    calls.clear();
    clickThroughTheSystem(caller.btnSecond);
    comeToRest();
    EXPECT_EQ(calls, Calls{"second"}) << "it blocks no other window this time";
}

TEST_F(ModalForm, StaysInFrontOfTheWindowItWasCalledFrom)
{
    FirstScreen& caller = showCaller();
    const QWindow* parent = nullptr;
    user.inDialog("FirstDialog", [&parent] {
        parent = form<FirstDialog>().window()->windowHandle()->transientParent();
        form<FirstDialog>().Hide();
    });
    user.click("btnFirst");
    EXPECT_EQ(parent, caller.window()->windowHandle());
}
