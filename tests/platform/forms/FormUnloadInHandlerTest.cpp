// A form outlives its running handlers, whichever of them unloads it. Most of these tests use the form after
// a message box, whose event loop would destroy the form if it were idle.

#include "tests/platform/forms/TestForms.h"

#include <QAction>

using namespace forms;

class UnloadInAHandler : public FormsTest
{
protected:
    /// Unloads the first screen, waits for a message box, then uses the unloaded form.
    static Handler unloadAndGoOn(FirstScreen& unloaded)
    {
        return [&unloaded] {
            unloaded.Unload();
            MsgBox("still here");
            unloaded.txtThird.setText("still here");
            calls.push_back(unloaded.txtThird.text());
        };
    }

    void expectGone()
    {
        comeToRest();
        EXPECT_EQ(calls, (Calls{"FirstScreen.Form_QueryUnload 1", "FirstScreen.Form_Unload", "still here",
                                "FirstScreen is destroyed"}));
        EXPECT_EQ(user.messages.size(), 1U);
        EXPECT_FALSE(isLoaded<FirstScreen>());
    }
};

TEST_F(UnloadInAHandler, OfAButtonClickedWithTheMouse)
{
    FirstScreen& screen = showFirstScreen();
    screen.btnFirst.onClick(unloadAndGoOn(screen));
    user.click("btnFirst");
    expectGone();
}

TEST_F(UnloadInAHandler, OfAButtonPressedWithTheSpaceBar)
{
    FirstScreen& screen = showFirstScreen();
    screen.btnFirst.onClick(unloadAndGoOn(screen));
    screen.btnFirst.takeFocus();
    user.key(Qt::Key_Space);
    expectGone();
}

TEST_F(UnloadInAHandler, OfAButtonPressedByItsAccessKey)
{
    FirstScreen& screen = showFirstScreen();
    screen.btnFirst.onClick(unloadAndGoOn(screen));
    user.key(Qt::Key_F, Qt::AltModifier);
    expectGone();
}

TEST_F(UnloadInAHandler, OfTheDefaultButtonPressedInAField)
{
    FirstScreen& screen = showFirstScreen();
    screen.setDefaultButton(screen.btnFirst);
    screen.btnFirst.onClick(unloadAndGoOn(screen));
    screen.txtFirst.takeFocus();
    user.key(Qt::Key_Return);
    expectGone();
}

TEST_F(UnloadInAHandler, OfTheDefaultButtonPressedInAList)
{
    FirstScreen& screen = showFirstScreen();
    screen.setDefaultButton(screen.btnFirst);
    screen.btnFirst.onClick(unloadAndGoOn(screen));
    screen.Combo1.takeFocus();
    user.key(Qt::Key_Return);
    expectGone();
}

TEST_F(UnloadInAHandler, OfAFieldClicked)
{
    FirstScreen& screen = showFirstScreen();
    screen.txtFirst.onClick(unloadAndGoOn(screen));
    user.click("txtFirst");
    expectGone();
}

TEST_F(UnloadInAHandler, OfTheMousePressedOnAField)
{
    FirstScreen& screen = showFirstScreen();
    screen.txtFirst.onMouseDown(unloadAndGoOn(screen));
    user.pressMouse("txtFirst");
    expectGone();
}

TEST_F(UnloadInAHandler, OfAChangeByAKey)
{
    FirstScreen& screen = showFirstScreen();
    screen.txtFirst.onChange(unloadAndGoOn(screen));
    screen.txtFirst.takeFocus();
    user.keys("7");
    expectGone();
}

TEST_F(UnloadInAHandler, OfAChangeByAWriteOfTheProgram)
{
    FirstScreen& screen = showFirstScreen();
    screen.txtFirst.onChange(unloadAndGoOn(screen));
    screen.btnFirst.onClick([&screen] {
        screen.txtFirst.setText("70");
        EXPECT_EQ(screen.txtFirst.text(), "70") << "the writer goes on with its form";
    });
    user.click("btnFirst");
    expectGone();
}

TEST_F(UnloadInAHandler, OfAnEnterKeyInAField)
{
    FirstScreen& screen = showFirstScreen();
    screen.txtFirst.onKeyPress([going = unloadAndGoOn(screen)](int& /*key*/) { going(); });
    screen.txtFirst.takeFocus();
    user.key(Qt::Key_Return);
    expectGone();
}

TEST_F(UnloadInAHandler, OfATabInAField)
{
    FirstScreen& screen = showFirstScreen();
    screen.txtFirst.onKeyPress([going = unloadAndGoOn(screen)](int& /*key*/) { going(); });
    screen.txtFirst.takeFocus();
    user.key(Qt::Key_Tab);
    expectGone();
}

TEST_F(UnloadInAHandler, OfAKeyThatThenEditsTheField)
{
    FirstScreen& screen = showFirstScreen();
    screen.txtFirst.onKeyPress([going = unloadAndGoOn(screen)](int& /*key*/) { going(); });
    screen.txtFirst.takeFocus();
    user.key(Qt::Key_7);
    expectGone();
}

TEST_F(UnloadInAHandler, OfAMenuEntry)
{
    FirstScreen& screen = form<FirstScreen>();
    Menu mnuFile(screen, "mnuFile", "&File");
    MenuCommand mnuExit(screen, "mnuExit", "E&xit");
    mnuFile.add(mnuExit);
    screen.addToMenuBar(mnuFile);
    mnuExit.onClick(unloadAndGoOn(screen));
    showFirstScreen();
    user.choose("mnuExit");
    expectGone();
}

TEST_F(UnloadInAHandler, OfACommandOnTheMenuBarByItsAccessKey)
{
    FirstScreen& screen = form<FirstScreen>();
    MenuCommand mnuMain1(screen, "mnuMain1", "&Main Menu");
    screen.addToMenuBar(mnuMain1);
    mnuMain1.onClick(unloadAndGoOn(screen));
    showFirstScreen();
    user.key(Qt::Key_M, Qt::AltModifier);
    expectGone();
}

TEST_F(UnloadInAHandler, OfAListChosenFromByTheUser)
{
    FirstScreen& screen = showFirstScreen();
    screen.Combo1.addItem("English, I-P");
    screen.Combo1.addItem("Metric, SI");
    screen.Combo1.onClick(unloadAndGoOn(screen));
    user.chooseFromList("Combo1", "Metric, SI");
    expectGone();
}

TEST_F(UnloadInAHandler, OfAnotherForm)
{
    FirstScreen& screen = showFirstScreen();
    screen.btnFirst.onClick([&screen] {
        form<SecondScreen>().btnFirst.press(); // unloads the first screen while its own handler runs
        screen.txtThird.setText("still here");
        calls.push_back(screen.txtThird.text());
    });
    form<SecondScreen>().btnFirst.onClick([&screen] {
        screen.Unload();
        MsgBox("still here");
    });
    calls.clear();
    user.click("btnFirst");
    expectGone();
}

TEST_F(UnloadInAHandler, WhileAnOuterHandlerOfTheFormStillRuns)
{
    FirstScreen& screen = showFirstScreen();
    screen.txtFirst.onChange([&screen] { screen.Unload(); });
    screen.btnFirst.onClick([&screen] {
        screen.txtFirst.setText("70");
        MsgBox("still here");
        screen.txtThird.setText("still here");
        calls.push_back(screen.txtThird.text());
    });
    user.click("btnFirst");
    expectGone();
}

TEST_F(UnloadInAHandler, FindsAFreshFormWhileTheOldOneIsStillUsed)
{
    FirstScreen& screen = showFirstScreen();
    screen.btnFirst.onClick([&screen] {
        screen.txtFirst.setText("old");
        screen.Unload();
        EXPECT_NE(&form<FirstScreen>(), &screen);
        EXPECT_EQ(form<FirstScreen>().txtFirst.text(), "");
        EXPECT_EQ(screen.txtFirst.text(), "old");
        form<FirstScreen>().Show();
    });
    user.click("btnFirst");
    comeToRest();
    EXPECT_EQ(user.text("txtFirst"), "");
    EXPECT_EQ(calls,
              (Calls{"FirstScreen.Form_QueryUnload 1", "FirstScreen.Form_Unload", "FirstScreen.Form_Load",
                     "FirstScreen.Form_Activate", "FirstScreen is destroyed"}));
}
