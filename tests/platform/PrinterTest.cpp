// The file printer: lines, pages and breaks.

#include "tests/platform/FilePrinter.h"

#include <QFile>

TEST_F(NoPrinters, OfferTheFilePrinterAlone)
{
    EXPECT_EQ(PrinterNames(), std::vector<std::string>{"Print to File (PDF)"});
}

TEST_F(NoPrinters, MakeTheFilePrinterTheCurrentOne)
{
    EXPECT_EQ(CurrentPrinter().deviceName(), "Print to File (PDF)");
    EXPECT_EQ(CurrentPrinter().port(), "");
}

TEST_F(NoPrinters, KeepTheCurrentPrinterForTheRunOfTheProgram)
{
    CurrentPrinter().device().setPageOrientation(QPageLayout::Landscape);
    EXPECT_EQ(CurrentPrinter().device().pageLayout().orientation(), QPageLayout::Landscape);
}

TEST_F(FilePrinterTest, TakesNoLineWithoutAFile)
{
    printer.setPort("");
    EXPECT_FALSE(printer.printLine("text"));
    EXPECT_FALSE(printer.isPrinting());
}

TEST_F(FilePrinterTest, TakesNoLineWhereTheFileCannotBeMade)
{
    printer.setPort(pdf("missing/out.pdf").toStdString());
    EXPECT_FALSE(printer.printLine("text"));
    EXPECT_FALSE(printer.isPrinting());
}

TEST_F(FilePrinterTest, WritesPdfUnderAnyName)
{
    printer.setPort(pdf("report").toStdString());
    print({"text"});
    ASSERT_TRUE(printer.endDocument());
    EXPECT_EQ(TextOf(pdf("report")), "text\n");
}

TEST_F(FilePrinterTest, PrintsLinesOneBelowTheOther)
{
    print({"first line", " second line", "third"});
    ASSERT_TRUE(printer.endDocument());
    EXPECT_EQ(TextOf(pdf()), "first line\nsecond line\nthird\n");
    EXPECT_EQ(PagesOf(pdf()), 1);
}

TEST_F(FilePrinterTest, PrintsABlankLineAsOneLineOfSpace)
{
    print({"one", "two", "", "four", "   ", "six"});
    ASSERT_TRUE(printer.endDocument());
    const auto words = WordsOf(pdf());
    ASSERT_EQ(words.size(), 4U);
    const double line = words[1].top - words[0].top;
    EXPECT_GT(line, 8.0);
    EXPECT_NEAR(words[2].top - words[1].top, 2 * line, 0.5);
    EXPECT_NEAR(words[3].top - words[2].top, 2 * line, 0.5);
}

TEST_F(FilePrinterTest, KeepsBlanksAtTheStartOfALine)
{
    print({"x", std::string(39, ' ') + "x"});
    ASSERT_TRUE(printer.endDocument());
    const auto words = WordsOf(pdf());
    ASSERT_EQ(words.size(), 2U);
    EXPECT_GT(words[1].left, words[0].left + 70.0);
}

TEST_F(FilePrinterTest, GoesOnToTheNextPageWhereOneIsFull)
{
    for (int i = 1; i <= 150; ++i)
        ASSERT_TRUE(printer.printLine("line " + std::to_string(i)));
    ASSERT_TRUE(printer.endDocument());

    const int pages = PagesOf(pdf());
    EXPECT_GE(pages, 2);
    QString all;
    for (int page = 1; page <= pages; ++page)
        all += QString::fromStdString(TextOf(pdf(), page)).trimmed() + '\n';
    QString expected;
    for (int i = 1; i <= 150; ++i)
        expected += "line " + QString::number(i) + '\n';
    EXPECT_EQ(all, expected);
    for (const Word& word : WordsOf(pdf()))
        EXPECT_LE(word.bottom, 842.0 - 40.0) << word.text.toStdString();
}

TEST_F(FilePrinterTest, StartsEveryPageAtItsTop)
{
    for (int i = 1; i <= 150; ++i)
        ASSERT_TRUE(printer.printLine(std::to_string(i)));
    ASSERT_TRUE(printer.endDocument());
    const auto words = WordsOf(pdf());
    int onTop = 0;
    for (const Word& word : words)
        onTop += word.top == words.front().top ? 1 : 0;
    EXPECT_EQ(onTop, PagesOf(pdf()));
    EXPECT_NEAR(words.front().top, 15.0 / 25.4 * 72.0, 5.0);
}

TEST_F(FilePrinterTest, BreaksALineThatIsWiderThanThePageSoThatNothingIsLost)
{
    QString text;
    for (int i = 0; i < 60; ++i)
        text += "word" + QString::number(i) + ' ';
    print({text.toStdString(), "after"});
    ASSERT_TRUE(printer.endDocument());

    EXPECT_EQ(QString::fromStdString(TextOf(pdf())).simplified(), text + "after");
    for (const Word& word : WordsOf(pdf()))
        EXPECT_LE(word.right, 595.0 - 40.0) << word.text.toStdString();
}

TEST_F(FilePrinterTest, BreaksAWordThatIsWiderThanThePage)
{
    print({std::string(300, 'm')});
    ASSERT_TRUE(printer.endDocument());
    EXPECT_EQ(QString::fromStdString(TextOf(pdf())).remove('\n').remove(' '), QString(300, 'm'));
}

TEST_F(FilePrinterTest, BreaksALineOverTwoPages)
{
    QString text;
    for (int i = 0; i < 3000; ++i)
        text += "word" + QString::number(i) + ' ';
    print({text.toStdString()});
    ASSERT_TRUE(printer.endDocument());
    QString all;
    for (int page = 1; page <= PagesOf(pdf()); ++page)
        all += QString::fromStdString(TextOf(pdf(), page));
    EXPECT_GE(PagesOf(pdf()), 2);
    EXPECT_EQ(all.simplified(), text.trimmed());
}
