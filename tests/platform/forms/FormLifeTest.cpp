// Loading, showing and hiding, as a form's author sees them.

#include "tests/platform/forms/TestForms.h"

using namespace forms;

using FormLife = FormsTest;

TEST_F(FormLife, LoadsHiddenAtTheFirstUse)
{
    EXPECT_FALSE(form<FirstScreen>().isVisible());
    EXPECT_EQ(calls, Calls{"FirstScreen.Form_Load"});
    EXPECT_EQ(User::findWindow("FirstScreen"), form<FirstScreen>().window());
}

TEST_F(FormLife, LoadsOnce)
{
    FirstScreen& first = form<FirstScreen>();
    EXPECT_EQ(&form<FirstScreen>(), &first);
    EXPECT_EQ(calls, Calls{"FirstScreen.Form_Load"});
}

TEST_F(FormLife, LoadsByAWriteToOneOfItsFields)
{
    form<FirstScreen>().txtFirst.setText("70");
    EXPECT_EQ(calls, Calls{"FirstScreen.Form_Load"});
    EXPECT_EQ(form<FirstScreen>().txtFirst.text(), "70");
}

TEST_F(FormLife, IsNotLoadedByTheQuestion)
{
    EXPECT_FALSE(isLoaded<FirstScreen>());
    EXPECT_TRUE(calls.empty());
    form<FirstScreen>();
    EXPECT_TRUE(isLoaded<FirstScreen>());
    EXPECT_FALSE(isLoaded<SecondScreen>());
}

TEST_F(FormLife, IsTheSameInstanceInsideItsLoadHandler)
{
    const Form* named = nullptr;
    FirstScreen::life.load = [&named] { named = &form<FirstScreen>(); };
    EXPECT_EQ(&form<FirstScreen>(), named);
    EXPECT_EQ(calls, Calls{"FirstScreen.Form_Load"});
}

TEST_F(FormLife, LoadsAnotherFormFromItsLoadHandler)
{
    FirstScreen::life.load = [] { form<SecondScreen>().txtFirst.setText("from the first"); };
    form<FirstScreen>();
    EXPECT_EQ(calls, (Calls{"FirstScreen.Form_Load", "SecondScreen.Form_Load"}));
    EXPECT_EQ(form<SecondScreen>().txtFirst.text(), "from the first");
}

TEST_F(FormLife, ActivatesAtEveryShowing)
{
    form<FirstScreen>().Show();
    form<FirstScreen>().Hide();
    form<FirstScreen>().Show();
    EXPECT_EQ(calls,
              (Calls{"FirstScreen.Form_Load", "FirstScreen.Form_Activate", "FirstScreen.Form_Activate"}));
}

TEST_F(FormLife, IsOnTheScreenWhenItActivates)
{
    bool visible = false;
    FirstScreen::life.activate = [&visible] { visible = form<FirstScreen>().isVisible(); };
    form<FirstScreen>().Show();
    EXPECT_TRUE(visible);
}

TEST_F(FormLife, ComesToTheFrontByAShowWhileItIsShown)
{
    form<FirstScreen>().Show();
    form<SecondScreen>().Show();
    comeToRest();
    ASSERT_EQ(QApplication::activeWindow(), form<SecondScreen>().window());
    calls.clear();
    form<FirstScreen>().Show();
    comeToRest();
    EXPECT_EQ(QApplication::activeWindow(), form<FirstScreen>().window());
    EXPECT_TRUE(form<SecondScreen>().isVisible());
    EXPECT_TRUE(calls.empty()) << "it was shown before: no second activation";
}

TEST_F(FormLife, KeepsItsFieldsWhileItIsHidden)
{
    showFirstScreen();
    user.type("txtFirst", "70");
    form<FirstScreen>().Hide();
    EXPECT_FALSE(form<FirstScreen>().isVisible());
    EXPECT_TRUE(isLoaded<FirstScreen>());
    form<FirstScreen>().Show();
    EXPECT_EQ(user.text("txtFirst"), "70");
}

TEST_F(FormLife, MayUnloadItselfInItsLoadHandler)
{
    FirstScreen::life.load = [] { form<FirstScreen>().Unload(); };
    form<FirstScreen>().Show();
    FirstScreen::life = {};
    comeToRest();
    EXPECT_FALSE(isLoaded<FirstScreen>());
    EXPECT_EQ(User::findWindow("FirstScreen"), nullptr);
}

TEST_F(FormLife, MayUnloadItselfWhenItActivates)
{
    FirstScreen::life.activate = [] { form<FirstScreen>().Unload(); };
    form<FirstScreen>().Show();
    comeToRest();
    EXPECT_FALSE(isLoaded<FirstScreen>());
    EXPECT_EQ(calls.back(), "FirstScreen is destroyed");
}

TEST_F(FormLife, MayHideItselfWhenItActivates)
{
    FirstScreen::life.activate = [] { form<FirstScreen>().Hide(); };
    form<FirstScreen>().Show();
    EXPECT_FALSE(form<FirstScreen>().isVisible());
}

TEST_F(FormLife, HasNoMoreHandlersRunWhenAllFormsAreCleared)
{
    showFirstScreen();
    form<SecondScreen>().Unload();
    calls.clear();
    FormRegistry::clear();
    EXPECT_EQ(calls, (Calls{"FirstScreen is destroyed", "SecondScreen is destroyed"}));
}
