// The process ends after the handler that ends it, or when the toolkit does.

#include "tests/platform/forms/TestForms.h"

#include <QTimer>

using namespace forms;

using EndOfTheProcess = FormsTest;

namespace {

/// Runs the event loop and the user's action in it.
int runWith(const Handler& action)
{
    QTimer::singleShot(0, qApp, action);
    QTimer::singleShot(5000, qApp, [] { QCoreApplication::exit(-1); }); // a hanging test fails
    return QApplication::exec();
}

} // namespace

TEST_F(EndOfTheProcess, ComesWithStatusZeroAfterTheHandlerHasReturned)
{
    showFirstScreen().btnFirst.onClick([] {
        EndProcess();
        calls.push_back("the handler goes on");
    });
    EXPECT_EQ(runWith([this] { user.click("btnFirst"); }), 0);
    EXPECT_EQ(calls, Calls{"the handler goes on"});
}

TEST_F(EndOfTheProcess, ComesFromTheQueryUnloadHandlerAfterUnloading)
{
    FirstScreen::life.queryUnload = [] { EndProcess(); };
    showFirstScreen();
    EXPECT_EQ(runWith([this] { user.closeWindow(); }), 0);
    EXPECT_EQ(Only({"FirstScreen.Form_Unload"}), Calls{"FirstScreen.Form_Unload"});
}

TEST_F(EndOfTheProcess, UnloadsNoFormThatIsStillShown)
{
    form<SecondScreen>().Show();
    showFirstScreen().btnFirst.onClick([] { EndProcess(); });
    EXPECT_EQ(runWith([] { form<FirstScreen>().btnFirst.press(); }), 0);
    EXPECT_TRUE(calls.empty());
    EXPECT_TRUE(isLoaded<SecondScreen>());
}

TEST_F(EndOfTheProcess, ComesAlthoughAFormIsShownAfterwards)
{
    showFirstScreen().btnFirst.onClick([] {
        EndProcess();
        form<SecondScreen>().Show();
    });
    EXPECT_EQ(runWith([this] { user.click("btnFirst"); }), 0);
}

TEST_F(EndOfTheProcess, ComesOutOfAModalDialog)
{
    showFirstScreen().btnFirst.onClick([] {
        form<FirstDialog>().ShowModal();
        calls.push_back("the caller goes on");
        form<FirstDialog>().Hide();
    });
    user.inDialog("FirstDialog", [] { EndProcess(); });
    EXPECT_EQ(runWith([this] { user.click("btnFirst"); }), 0);
    EXPECT_EQ(Only({"the caller goes on"}), Calls{"the caller goes on"});
}

TEST_F(EndOfTheProcess, ComesWithoutACrashWhereTheToolkitEndsIt)
{
    const auto exitWith = [](int status) {
        form<SecondScreen>().Unload(); // still waits to be destroyed
        std::exit(status);
    };
    showFirstScreen();
    form<FirstDialog>().Show();
    form<SecondScreen>().Show();
    qputenv("ASAN_OPTIONS", "detect_leaks=0"); // the process that exits doesn't free the toolkit's memory
    EXPECT_EXIT(exitWith(3), testing::ExitedWithCode(3), "");
}

TEST_F(EndOfTheProcess, ComesOutOfAMessageBoxOverAModalDialog)
{
    showFirstScreen().btnFirst.onClick([] {
        form<FirstDialog>().ShowModal();
        calls.push_back("the caller goes on");
    });
    form<FirstDialog>().btnFirst.onClick([] { MsgBox("a message"); });
    user.atMessage([] { EndProcess(); });
    user.inDialog("FirstDialog", [this] { user.click("btnFirst"); });
    EXPECT_EQ(runWith([this] { user.click("btnFirst"); }), 0);
    EXPECT_EQ(Only({"the caller goes on"}), Calls{"the caller goes on"});
}
