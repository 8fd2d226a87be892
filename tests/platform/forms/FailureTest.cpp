// A failure that leaves a handler is reported and ends the process at once.

#include "tests/platform/forms/TestForms.h"

#include <QDir>

#include <cstdlib>
#include <fstream>
#include <iostream>
#include <stdexcept>

using namespace forms;

class Failures : public FormsTest
{
protected:
    Failures()
    {
        QCoreApplication::setApplicationName("Dunmoor");
        DescribeFailure = [](const std::exception& failure) {
            return "Run-time error:\n" + std::string(failure.what());
        };
    }

    static void fail() { throw std::runtime_error("Type mismatch"); }

    static inline const char* const report = "message: Dunmoor: Run-time error:\nType mismatch";
};

TEST_F(Failures, OfAButtonEndTheProcessWithTheReport)
{
    showFirstScreen().btnFirst.onClick(fail);
    EXPECT_EXIT(user.click("btnFirst"), testing::ExitedWithCode(1), report);
}

TEST_F(Failures, OfAButtonPressedByTheProgramAreAsFatal)
{
    form<FirstScreen>().btnFirst.onClick(fail);
    EXPECT_EXIT(form<FirstScreen>().btnFirst.press(), testing::ExitedWithCode(1), report);
}

TEST_F(Failures, OfTheLoadHandlerEndTheProcess)
{
    FirstScreen::life.load = fail;
    EXPECT_EXIT(form<FirstScreen>(), testing::ExitedWithCode(1), report);
}

TEST_F(Failures, OfTheActivateHandlerEndTheProcess)
{
    FirstScreen::life.activate = fail;
    EXPECT_EXIT(form<FirstScreen>().Show(), testing::ExitedWithCode(1), report);
}

TEST_F(Failures, OfTheQueryUnloadHandlerEndTheProcess)
{
    FirstScreen::life.queryUnload = fail;
    showFirstScreen();
    EXPECT_EXIT(user.closeWindow(), testing::ExitedWithCode(1), report);
}

TEST_F(Failures, OfTheUnloadHandlerEndTheProcess)
{
    FirstScreen::life.unload = fail;
    EXPECT_EXIT(form<FirstScreen>().Unload(), testing::ExitedWithCode(1), report);
}

TEST_F(Failures, OfAKeyEndTheProcess)
{
    FirstScreen& screen = showFirstScreen();
    screen.txtFirst.onKeyPress([](int& /*key*/) { fail(); });
    screen.txtFirst.takeFocus();
    EXPECT_EXIT(user.key(Qt::Key_Tab), testing::ExitedWithCode(1), report);
    EXPECT_EXIT(user.key(Qt::Key_Return), testing::ExitedWithCode(1), report);
    EXPECT_EXIT(user.keys("7"), testing::ExitedWithCode(1), report);
}

TEST_F(Failures, OfAChangeAClickAListAndAMenuEndTheProcess)
{
    FirstScreen& screen = form<FirstScreen>();
    MenuCommand mnuMain1(screen, "mnuMain1", "&Main Menu");
    screen.addToMenuBar(mnuMain1);
    mnuMain1.onClick(fail);
    screen.txtFirst.onChange(fail);
    screen.txtSecond.onClick(fail);
    screen.txtThird.onMouseDown(fail);
    screen.Combo1.onClick(fail);
    screen.Combo1.addItem("English, I-P");
    showFirstScreen();
    EXPECT_EXIT(user.type("txtFirst", "7"), testing::ExitedWithCode(1), report);
    EXPECT_EXIT(user.click("txtSecond"), testing::ExitedWithCode(1), report);
    EXPECT_EXIT(user.pressMouse("txtThird"), testing::ExitedWithCode(1), report);
    EXPECT_EXIT(user.chooseFromList("Combo1", "English, I-P"), testing::ExitedWithCode(1), report);
    EXPECT_EXIT(screen.Combo1.select(0), testing::ExitedWithCode(1), report);
    EXPECT_EXIT(user.choose("mnuMain1"), testing::ExitedWithCode(1), report);
}

TEST_F(Failures, OfAChangeRaisedByAWriteDoNotReachTheWritersFailureBranch)
{
    FirstScreen& screen = showFirstScreen();
    screen.txtFirst.onChange(fail);
    screen.btnFirst.onClick([&screen] {
        try {
            screen.txtFirst.setText("70");
        } catch (const std::exception&) {
            MsgBox("the writer's failure branch");
        }
    });
    EXPECT_EXIT(user.click("btnFirst"), testing::ExitedWithCode(1), report);
}

TEST_F(Failures, OfAModalDialogEndTheProcessOverItsWaitingCaller)
{
    FirstScreen& screen = showFirstScreen();
    screen.btnFirst.onClick([] {
        try {
            form<FirstDialog>().ShowModal();
        } catch (const std::exception&) {
            MsgBox("the caller's failure branch");
        }
    });
    form<FirstDialog>().btnFirst.onClick(fail);
    user.inDialog("FirstDialog", [this] { user.click("btnFirst"); });
    EXPECT_EXIT(user.click("btnFirst"), testing::ExitedWithCode(1), report);
}

TEST_F(Failures, AreReportedWhateverKindTheyAre)
{
    showFirstScreen().btnFirst.onClick([] { static_cast<void>(std::string("text").at(9)); });
    EXPECT_EXIT(user.click("btnFirst"), testing::ExitedWithCode(1),
                "message: Dunmoor: Run-time error:\n.*at");
}

TEST_F(Failures, ThatAHandlerCatchesAreItsOwnBusiness)
{
    showFirstScreen().btnFirst.onClick([] {
        try {
            fail();
        } catch (const std::exception&) {
            MsgBox("Try Again!", " ERROR");
        }
        calls.push_back("goes on");
    });
    user.click("btnFirst");
    EXPECT_EQ(calls, Calls{"goes on"});
    EXPECT_EQ(user.messages, (std::vector{Message{"Try Again!", " ERROR"}}));
}

TEST_F(Failures, EndTheProcessWithoutAnyFurtherHandlerOrCleanUp)
{
    const std::string trace = QDir::homePath().toStdString() + "/trace";
    static std::string traceOfTheExit;
    traceOfTheExit = trace;
    const Handler leaveTrace = [trace] { std::ofstream(trace) << "a handler ran"; };
    FirstScreen::life.queryUnload = FirstScreen::life.unload = leaveTrace;
    showFirstScreen().btnFirst.onClick(fail);

    const auto failing = [this] {
        std::atexit([] { std::ofstream(traceOfTheExit) << "the process was cleaned up"; });
        user.click("btnFirst");
    };
    EXPECT_EXIT(failing(), testing::ExitedWithCode(1), report);
    EXPECT_FALSE(std::ifstream(trace).is_open());
}

TEST_F(Failures, WaitForTheUserToReadTheReport)
{
    showFirstScreen().btnFirst.onClick(fail);
    const auto failing = [this] {
        user.atMessage([] { std::cerr << "the box is open\n"; });
        user.click("btnFirst");
    };
    EXPECT_EXIT(failing(), testing::ExitedWithCode(1), "the box is open");
}
