// What a reader finds in the help.

#include "tests/platform/help/HelpTest.h"

#include <QLineEdit>

using namespace help;

namespace {

class HelpFind : public HelpTest
{
protected:
    void SetUp() override
    {
        HelpTest::SetUp();
        ask(100);
    }
    static QLineEdit& field() { return part<QLineEdit>("helpFindField"); }
    static void find(const QString& words)
    {
        press(Qt::Key_F, Qt::ControlModifier);
        typeWords(words);
    }
    static std::string markedNow() { return page().textCursor().selectedText().toLower().toStdString(); }
    static int place() { return page().textCursor().selectionStart(); }
};

TEST_F(HelpFind, OpensTheFirstPageFoundOnEnter)
{
    press(Qt::Key_F, Qt::ControlModifier | Qt::ShiftModifier);
    typeWords("air");
    press(Qt::Key_Return);
    EXPECT_EQ(heading(), "Mixed air");
    EXPECT_EQ(page().marks(), 2);
    EXPECT_EQ(currentLine("helpSearchResults"), "Mixed air");
    EXPECT_EQ(help().focusWidget(), &part<QWidget>("helpSearchResults"));
    press(Qt::Key_Down);
    press(Qt::Key_Return);
    EXPECT_EQ(heading(), "Air properties");
}

TEST_F(HelpFind, OpensTheFirstPageFoundByTheButton)
{
    press(Qt::Key_F, Qt::ControlModifier | Qt::ShiftModifier);
    typeWords("psychrometer");
    click(part<QWidget>("helpFind"), {10, 10});
    EXPECT_EQ(heading(), "Air properties");
    EXPECT_EQ(page().marks(), 2);
}

TEST_F(HelpFind, MarksTheWordsOnThisPageAsTheyAreTyped)
{
    ask(105);
    EXPECT_FALSE(field().isVisible());
    find("psych");
    EXPECT_TRUE(field().isVisible());
    EXPECT_EQ(help().focusWidget(), &field());
    EXPECT_EQ(page().marks(), 2);
    typeWords("rometers");
    EXPECT_EQ(page().marks(), 1);
    EXPECT_EQ(markedNow(), "psychrometers");
    EXPECT_EQ(heading(), "Air properties");
    EXPECT_EQ(notice(), "");
    typeWords("x");
    EXPECT_EQ(page().marks(), 0);
    EXPECT_EQ(notice(), "This page has none of these words.");
    press(Qt::Key_Backspace);
    EXPECT_EQ(page().marks(), 1);
    EXPECT_EQ(notice(), "");
}

TEST_F(HelpFind, GoesFromMarkToMarkOnThisPage)
{
    ask(105);
    find("psychro");
    typeWords(" ");
    const int first = place();
    press(Qt::Key_Return);
    const int second = place();
    EXPECT_GT(second, first);
    EXPECT_EQ(markedNow(), "psychro");
    press(Qt::Key_Return);
    EXPECT_EQ(place(), first) << "from the last to the first";
    press(Qt::Key_F3);
    EXPECT_EQ(place(), second);
    EXPECT_EQ(help().focusWidget(), &field());
}

TEST_F(HelpFind, FindsTheSameWordsOnTheNextPage)
{
    find("air");
    for (const Qt::Key next : {Qt::Key_Return, Qt::Key_F3}) {
        ask(next == Qt::Key_F3 ? 105 : 110);
        EXPECT_EQ(page().marks(), 0);
        press(Qt::Key_F, Qt::ControlModifier);
        press(next);
        EXPECT_GT(page().marks(), 0);
        EXPECT_EQ(markedNow(), "air");
    }
}

TEST_F(HelpFind, FindsItsOwnWordsAfterASearch)
{
    find("psychrometer");
    press(Qt::Key_F, Qt::ControlModifier | Qt::ShiftModifier);
    typeWords("dew");
    press(Qt::Key_Return);
    EXPECT_EQ(heading(), "Air properties");
    press(Qt::Key_F3);
    EXPECT_EQ(markedNow(), "dew");
    press(Qt::Key_F, Qt::ControlModifier);
    press(Qt::Key_Return);
    EXPECT_EQ(markedNow(), "psychrometer");
}

TEST_F(HelpFind, EndsOnEscapeWithoutClosingTheHelp)
{
    find("air");
    press(Qt::Key_Escape);
    ASSERT_NE(findHelp(), nullptr);
    EXPECT_FALSE(field().isVisible());
    EXPECT_EQ(page().marks(), 0);
    EXPECT_EQ(help().focusWidget(), &page());
    press(Qt::Key_Escape);
    EXPECT_EQ(findHelp(), nullptr);
}

} // namespace
