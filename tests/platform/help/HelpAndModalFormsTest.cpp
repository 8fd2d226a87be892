// The help window and the forms: it can be read while a modal form waits, and outlives the form that opened
// it.

#include "tests/platform/forms/TestForms.h"
#include "tests/platform/help/HelpTest.h"

#include <QScrollBar>
#include <QWindow>

using namespace forms;
using namespace help;

namespace {

class HelpAndModalForms : public HelpTest
{
protected:
    void SetUp() override
    {
        HelpTest::SetUp();
        form<FirstScreen>().btnFirst.onClick([] { form<FirstDialog>().ShowModal(); });
        form<FirstDialog>().btnFirst.onClick([] { askFrom(form<FirstDialog>(), 105); });
        form<FirstScreen>().Show();
        comeToRest();
    }

    static void askFrom(Form& owner, int topic)
    {
        HtmlHelpA(owner, "sample.chm", HH_HELP_CONTEXT, topic);
        comeToRest();
    }

    /// A click as the windowing system delivers it: a blocked window doesn't receive it.
    static void clickTheWindow(QWidget& widget)
    {
        QTest::mouseClick(help().windowHandle(), Qt::LeftButton, Qt::NoModifier,
                          widget.mapTo(&help(), widget.rect().center()));
        comeToRest();
    }
    static void expectToBeUsable()
    {
        clickTheWindow(button("helpLarger"));
        EXPECT_EQ(page().textSize(), 1);
        clickTheWindow(button("helpNormal"));
        EXPECT_EQ(page().textSize(), 0);
    }

    /// Shows the modal form and runs actions while it waits.
    void whileTheDialogWaits(const std::function<void()>& actions)
    {
        bool isDone = false;
        user.inDialog("FirstDialog", [&] {
            comeToRest();
            actions();
            isDone = true;
            form<FirstDialog>().Hide();
        });
        user.click("btnFirst");
        EXPECT_TRUE(isDone);
    }
    void SetUpCaller() { form<AnyForm>().Hide(); }
};

TEST_F(HelpAndModalForms, TheWaitingFormAsksForHelpThatCanBeRead)
{
    SetUpCaller();
    whileTheDialogWaits([this] {
        user.click("btnFirst");
        EXPECT_EQ(heading(), "Air properties");
        expectToBeUsable();
        EXPECT_TRUE(form<FirstDialog>().isVisible());
    });
}

TEST_F(HelpAndModalForms, HelpThatIsOpenCanStillBeReadWhenAFormBeginsToWait)
{
    SetUpCaller();
    askFrom(form<FirstScreen>(), 100);
    whileTheDialogWaits([] { expectToBeUsable(); });
    expectToBeUsable();
}

TEST_F(HelpAndModalForms, TheFormsBehindStillTakeNoInput)
{
    SetUpCaller();
    int presses = 0;
    form<FirstScreen>().btnSecond.onClick([&presses] { ++presses; });
    whileTheDialogWaits([this] {
        user.click("btnFirst");
        QWidget* const window = form<FirstScreen>().window();
        QWidget* const blocked = form<FirstScreen>().btnSecond.widget();
        QTest::mouseClick(window->windowHandle(), Qt::LeftButton, Qt::NoModifier,
                          blocked->mapTo(window, blocked->rect().center()));
        comeToRest();
    });
    EXPECT_EQ(presses, 0);
}

TEST_F(HelpAndModalForms, OutlivesTheFormThatAsked)
{
    SetUpCaller();
    whileTheDialogWaits([this] {
        user.click("btnFirst");
        form<FirstDialog>().Unload();
    });
    comeToRest();
    EXPECT_TRUE(help().isVisible());
    expectToBeUsable();
    askFrom(form<FirstScreen>(), 110);
    EXPECT_EQ(heading(), "Mixed air");
}

TEST_F(HelpAndModalForms, StaysWhileAFormIsHiddenAndAnotherShown)
{
    SetUpCaller();
    askFrom(form<FirstScreen>(), 100);
    form<FirstScreen>().Hide();
    form<SecondScreen>().Show();
    comeToRest();
    EXPECT_TRUE(help().isVisible());
    expectToBeUsable();
    form<FirstScreen>().Unload();
    comeToRest();
    expectToBeUsable();
}

TEST_F(HelpAndModalForms, ClosesWithoutItsOwner)
{
    SetUpCaller();
    askFrom(form<FirstScreen>(), 100);
    form<SecondScreen>().Show();
    form<FirstScreen>().Unload();
    comeToRest();
    press(Qt::Key_Escape);
    EXPECT_EQ(findHelp(), nullptr);
}

TEST_F(HelpAndModalForms, StandsBeforeTheFormThatAskedLast)
{
    askFrom(form<FirstScreen>(), 100);
    EXPECT_EQ(help().windowHandle()->transientParent(), form<FirstScreen>().window()->windowHandle());
    ask(105);
    EXPECT_EQ(help().windowHandle()->transientParent(), form<AnyForm>().window()->windowHandle());
}

TEST_F(HelpAndModalForms, AFormMayBeginToWaitWhileTheHelpHasTheFocus)
{
    SetUpCaller();
    askFrom(form<FirstScreen>(), 100);
    EXPECT_EQ(QGuiApplication::focusWindow(), help().windowHandle());
    bool wasUsable = false;
    user.inDialog("FirstDialog", [&] {
        comeToRest();
        EXPECT_EQ(help().windowHandle()->transientParent(), form<FirstDialog>().window()->windowHandle());
        expectToBeUsable();
        wasUsable = true;
        form<FirstDialog>().Hide();
    });
    form<FirstDialog>().ShowModal();
    EXPECT_TRUE(wasUsable);
}

TEST_F(HelpAndModalForms, AMessageWaitsBeforeTheHelpAndGoesAway)
{
    SetUpCaller();
    askFrom(form<FirstScreen>(), 100);
    MsgBox("Please input an atmospheric pressure");
    comeToRest();
    EXPECT_EQ(user.messages.size(), 1U);
    expectToBeUsable();
}

TEST_F(HelpAndModalForms, ItsOwnPrintDialogBlocksIt)
{
    SetUpCaller();
    qputenv("CUPS_SERVER", "/nonexistent/socket");
    askFrom(form<FirstScreen>(), 100);
    clickTheWindow(button("helpPrint"));
    auto* const dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
    ASSERT_NE(dialog, nullptr);
    EXPECT_EQ(dialog->objectName(), "PrintDialog");
    clickTheWindow(button("helpLarger"));
    EXPECT_EQ(page().textSize(), 0);
    dialog->reject();
    comeToRest();
    expectToBeUsable();
}

} // namespace
