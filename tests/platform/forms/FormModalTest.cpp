// Dialogs that a handler waits for.

#include "tests/platform/forms/ModalForm.h"

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
    EXPECT_EQ(Only({"before", "FirstDialog.Form_QueryUnload 1", "FirstDialog.Form_Unload", "after"}),
              (Calls{"before", "FirstDialog.Form_QueryUnload 1", "FirstDialog.Form_Unload", "after"}));
    EXPECT_FALSE(isLoaded<FirstDialog>());
}

TEST_F(ModalForm, KeepsItsCallerWaitingUntilItIsClosedByItsBox)
{
    showCaller();
    user.inDialog("FirstDialog", [this] { user.closeWindow(); });
    user.click("btnFirst");
    EXPECT_EQ(Only({"before", "FirstDialog.Form_QueryUnload 0", "FirstDialog.Form_Unload", "after"}),
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
    caller.btnSecond.onClick(Recorder("second"));
    form<SecondScreen>().btnSecond.onClick(Recorder("second of the other screen"));
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
    caller.btnSecond.onClick(Recorder("second"));
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
