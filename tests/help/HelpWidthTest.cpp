// Every page of the real help file fits a help window of 900 pixels.

#include "platform/Desktop.h"
#include "tests/help/HelpPage.h"
#include "tests/support/ProgramTest.h"

#include <QApplication>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextBrowser>
#include <QTextLayout>
#include <QTextTable>

class HelpWidth : public ProgramTest
{
protected:
    void SetUp() override
    {
        MakeCurrentDirectory(QCoreApplication::applicationDirPath().toStdString());
        start();
        user.choose("mnuHSearch");
        QWidget* const help = User::findWindow("HelpWindow");
        ASSERT_NE(help, nullptr);
        help->resize(900, 650);
        page = help->findChild<QTextBrowser*>("helpPage");
        ASSERT_NE(page, nullptr);
    }

    void show(const QString& name)
    {
        page->setSource(QUrl("help:/" + name));
        QApplication::processEvents();
        ASSERT_GT(page->document()->size().height(), 0) << name.toStdString(); // completes the layout
    }

    QTextBrowser* page = nullptr;
};

TEST_F(HelpWidth, OfAWindowOf900PixelsShowsEveryPageWithoutScrollingSideways)
{
    for (const QString& name : helpPages()) {
        show(name);
        EXPECT_EQ(page->horizontalScrollBar()->maximum(), 0) << name.toStdString();
    }
}

// A column that is too narrow breaks prose into lines of a word or two.
TEST_F(HelpWidth, OfEveryColumnKeepsProseReadable)
{
    constexpr int prose = 100;       // characters; shorter texts are not prose
    constexpr int shortestLine = 18; // characters, on average
    for (const QString& name : helpPages()) {
        show(name);
        for (QTextBlock block = page->document()->begin(); block.isValid(); block = block.next()) {
            const bool isInTable = QTextCursor(block).currentTable() != nullptr;
            if (!isInTable || block.length() < prose)
                continue;
            EXPECT_GE(block.length() / block.layout()->lineCount(), shortestLine)
                << name.toStdString() << ": " << block.text().toStdString();
        }
    }
}

// The toolkit breaks a word within if its column is too narrow.
TEST_F(HelpWidth, OfEveryColumnHoldsItsLongestWordOrFigure)
{
    const QString breakable = " /-\u2028";
    for (const QString& name : helpPages()) {
        show(name);
        for (QTextBlock block = page->document()->begin(); block.isValid(); block = block.next()) {
            for (int line = 0; line + 1 < block.layout()->lineCount(); ++line) {
                const QTextLine shown = block.layout()->lineAt(line);
                const int end = shown.textStart() + shown.textLength();
                EXPECT_TRUE(breakable.contains(block.text().at(end - 1)))
                    << name.toStdString() << ": " << block.text().left(end).toStdString() << '|';
            }
        }
    }
}
