// Unloading, and what the handlers of an unload may do.

#include "tests/platform/forms/TestForms.h"

using namespace forms;

using FormLife = FormsTest;

TEST_F(FormLife, AsksWithTheCodeReasonAndUnloads)
{
    showFirstScreen();
    form<FirstScreen>().Unload();
    EXPECT_FALSE(isLoaded<FirstScreen>());
    comeToRest();
    EXPECT_EQ(calls, (Calls{"FirstScreen.Form_QueryUnload 1", "FirstScreen.Form_Unload",
                            "FirstScreen is destroyed"}));
    EXPECT_EQ(User::findWindow("FirstScreen"), nullptr);
}

TEST_F(FormLife, AsksWithTheControlMenuReasonAtTheCloseBox)
{
    showFirstScreen();
    user.closeWindow();
    EXPECT_FALSE(isLoaded<FirstScreen>());
    comeToRest();
    EXPECT_EQ(calls, (Calls{"FirstScreen.Form_QueryUnload 0", "FirstScreen.Form_Unload",
                            "FirstScreen is destroyed"}));
}

TEST_F(FormLife, UnloadsAFormThatWasNeverShown)
{
    form<FirstScreen>().Unload();
    comeToRest();
    EXPECT_EQ(calls, (Calls{"FirstScreen.Form_Load", "FirstScreen.Form_QueryUnload 1",
                            "FirstScreen.Form_Unload", "FirstScreen is destroyed"}));
}

TEST_F(FormLife, StartsAfreshAfterAnUnload)
{
    form<FirstScreen>().txtFirst.setText("70");
    form<FirstScreen>().Unload();
    calls.clear();
    EXPECT_EQ(form<FirstScreen>().txtFirst.text(), "");
    EXPECT_EQ(calls, Calls{"FirstScreen.Form_Load"});
    comeToRest();
    EXPECT_TRUE(isLoaded<FirstScreen>()) << "the old instance alone is destroyed";
    EXPECT_EQ(calls, (Calls{"FirstScreen.Form_Load", "FirstScreen is destroyed"}));
}

TEST_F(FormLife, TakesASecondUnloadForNothing)
{
    FirstScreen& shown = showFirstScreen();
    shown.Unload();
    shown.Unload();
    EXPECT_EQ(calls, (Calls{"FirstScreen.Form_QueryUnload 1", "FirstScreen.Form_Unload"}));
}

TEST_F(FormLife, TakesUnloadsInItsUnloadHandlersForNothing)
{
    FirstScreen::life.queryUnload = FirstScreen::life.unload = [] { form<FirstScreen>().Unload(); };
    showFirstScreen();
    user.closeWindow();
    comeToRest();
    EXPECT_EQ(calls, (Calls{"FirstScreen.Form_QueryUnload 0", "FirstScreen.Form_Unload",
                            "FirstScreen is destroyed"}));
}

TEST_F(FormLife, KeepsItsFieldsForItsUnloadHandlers)
{
    Calls seen;
    FirstScreen::life.queryUnload =
        FirstScreen::life.unload = [&seen] { seen.push_back(form<FirstScreen>().txtFirst.text()); };
    showFirstScreen().txtFirst.setText("70");
    form<FirstScreen>().Unload();
    EXPECT_EQ(seen, (Calls{"70", "70"}));
}

TEST_F(FormLife, StaysAwayWhenItsUnloadHandlerShowsIt)
{
    FirstScreen::life.unload = [] { form<FirstScreen>().Show(); };
    showFirstScreen();
    user.closeWindow();
    comeToRest();
    EXPECT_FALSE(isLoaded<FirstScreen>());
    EXPECT_EQ(User::findWindow("FirstScreen"), nullptr);
}

TEST_F(FormLife, ShowsAnotherFormFromItsUnloadHandlers)
{
    FirstScreen::life.queryUnload = FirstScreen::life.unload = [] { form<SecondScreen>().Show(); };
    showFirstScreen();
    user.closeWindow();
    comeToRest();
    EXPECT_EQ(user.window(), "SecondScreen");
    EXPECT_EQ(calls.back(), "FirstScreen is destroyed");
}

TEST_F(FormLife, UnloadsAnotherFormFromItsUnloadHandler)
{
    form<SecondScreen>();
    FirstScreen::life.queryUnload = [] {
        form<SecondScreen>().Unload();
        form<FirstScreen>().Unload();
    };
    showFirstScreen();
    user.closeWindow();
    comeToRest();
    EXPECT_FALSE(isLoaded<FirstScreen>());
    EXPECT_FALSE(isLoaded<SecondScreen>());
}

TEST_F(FormLife, LeavesTheScreenAtOnceWhenItsUnloadHandlerUnloadsItAgain)
{
    FirstScreen::life.unload = [] {
        form<FirstScreen>().Unload();
        calls.push_back(form<FirstScreen>().isVisible() ? "in sight" : "out of sight");
        form<SecondScreen>().Show();
    };
    showFirstScreen();
    user.closeWindow();
    comeToRest();
    EXPECT_EQ(Only({"FirstScreen.Form_Unload", "in sight", "out of sight", "FirstScreen is destroyed"}),
              (Calls{"FirstScreen.Form_Unload", "out of sight", "FirstScreen is destroyed"}));
    EXPECT_EQ(user.window(), "SecondScreen");
}
