// Contents, index and search of the help window.

#include "tests/platform/help/HelpWindowTest.h"

#include <QScrollBar>

TEST_F(HelpWindowTest, ShowsTheContentsTreeWithTheLineOfThePage)
{
    EXPECT_EQ(lines("helpContents"),
              (Lines{"Welcome", "Calculators", "Air & its properties", "Mixed air", "Units"}))
        << "deeper lines are folded in";
    ask(105);
    EXPECT_EQ(lines("helpContents"),
              (Lines{"Welcome", "Calculators", "Air & its properties", "The range", "Mixed air", "Units"}));
    ask(100);
    EXPECT_EQ(currentLine("helpContents"), "Welcome");
    ask(110);
    EXPECT_EQ(currentLine("helpContents"), "Mixed air");
}

TEST_F(HelpWindowTest, OpensPagesFromTheContentsByMouse)
{
    clickLine("helpContents", "Units");
    EXPECT_EQ(heading(), "Units");
    clickLine("helpContents", "Calculators");
    EXPECT_EQ(heading(), "Units") << "a line that is a heading alone opens nothing";
    clickLine("helpContents", "Air & its properties");
    clickLine("helpContents", "The range");
    EXPECT_EQ(heading(), "Air properties");
    EXPECT_GT(page().verticalScrollBar()->value(), 0) << "it goes to the place on the page";
    EXPECT_EQ(currentLine("helpContents"), "The range");
}

TEST_F(HelpWindowTest, OpensPagesFromTheContentsByKeyboard)
{
    press(Qt::Key_F6);
    press(Qt::Key_Down);
    press(Qt::Key_Down);
    EXPECT_EQ(heading(), "Welcome");
    press(Qt::Key_Return);
    EXPECT_EQ(heading(), "Air properties");
    press(Qt::Key_F6);
    EXPECT_EQ(help().focusWidget(), &page());
}

TEST_F(HelpWindowTest, ListsTheIndexAndOpensItsPages)
{
    showPane(1);
    EXPECT_EQ(lines("helpIndex"),
              (Lines{"dew point", "mixture", "range of the air", "range of the units", "units"}));
    clickLine("helpIndex", "mixture");
    EXPECT_EQ(heading(), "Mixed air");
    clickLine("helpIndex", "range of the units");
    EXPECT_EQ(heading(), "Units");
}

TEST_F(HelpWindowTest, FiltersTheIndexAsTheReaderTypes)
{
    press(Qt::Key_I, Qt::AltModifier);
    press(Qt::Key_K, Qt::AltModifier);
    typeWords("UNIT");
    EXPECT_EQ(lines("helpIndex"), (Lines{"range of the units", "units"}));
    press(Qt::Key_Return);
    EXPECT_EQ(heading(), "Units");
    typeWords("x");
    EXPECT_EQ(lines("helpIndex"), Lines());
    press(Qt::Key_Return);
    EXPECT_EQ(heading(), "Units");
}

TEST_F(HelpWindowTest, SearchesAllPagesAndMarksWhatItFound)
{
    press(Qt::Key_F, Qt::ControlModifier | Qt::ShiftModifier);
    typeWords("Psychrometer");
    press(Qt::Key_Return);
    EXPECT_EQ(lines("helpSearchResults"), Lines{"Air properties"});
    EXPECT_EQ(part<QLabel>("helpSearchSummary").text(), "1 page");
    press(Qt::Key_Return);
    EXPECT_EQ(heading(), "Air properties");
    EXPECT_EQ(page().marks(), 2);
}

TEST_F(HelpWindowTest, PutsPagesFirstWhoseTitleHasTheWord)
{
    press(Qt::Key_F3);
    typeWords("air");
    click(part<QWidget>("helpFind"), {10, 10});
    EXPECT_EQ(lines("helpSearchResults"), (Lines{"Mixed air", "Air properties", "Welcome", "Units"}));
}

TEST_F(HelpWindowTest, FindsPagesThatHoldAllTheWords)
{
    searchFor("english, METRIC");
    EXPECT_EQ(lines("helpSearchResults"), Lines{"Units"});
    press(Qt::Key_F, Qt::ControlModifier | Qt::ShiftModifier);
    typeWords("english nowhere");
    press(Qt::Key_Return);
    EXPECT_EQ(lines("helpSearchResults"), Lines());
    EXPECT_EQ(part<QLabel>("helpSearchSummary").text(), "No page holds all these words.");
    press(Qt::Key_F, Qt::ControlModifier | Qt::ShiftModifier);
    typeWords(" ?");
    press(Qt::Key_Return);
    EXPECT_EQ(lines("helpSearchResults"), Lines());
}

TEST_F(HelpWindowTest, FindsNoScripts)
{
    searchFor("scripted");
    EXPECT_EQ(lines("helpSearchResults"), Lines());
}

TEST_F(HelpWindowTest, GoesFromMarkToMark)
{
    searchFor("air");
    press(Qt::Key_Return);
    EXPECT_EQ(heading(), "Mixed air");
    ASSERT_EQ(page().marks(), 2);
    const int first = page().textCursor().position();
    press(Qt::Key_F3);
    const int second = page().textCursor().position();
    EXPECT_GT(second, first);
    press(Qt::Key_F3);
    EXPECT_EQ(page().textCursor().position(), first);
    clickLink("first page");
    EXPECT_EQ(page().marks(), 0) << "another page begins without marks";
}
