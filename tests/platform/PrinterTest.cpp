#include "platform/Printer.h"
#include "tests/platform/Pdf.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QFontMetricsF>
#include <QTemporaryDir>

namespace {

/// A machine without any printer.
class NoPrinters : public testing::Test
{
protected:
    void SetUp() override { qputenv("CUPS_SERVER", "/nonexistent/socket"); }

    QString pdf(const char* name = "out.pdf") const { return folder.filePath(name); }

    QTemporaryDir folder;
};

/// The file printer with its own file.
class FilePrinterTest : public NoPrinters
{
protected:
    void SetUp() override
    {
        NoPrinters::SetUp();
        printer.setPort(pdf().toStdString());
        printer.device().setPageSize(QPageSize(QPageSize::A4));
    }

    void print(const std::vector<std::string>& lines)
    {
        for (const std::string& line : lines)
            ASSERT_TRUE(printer.printLine(line));
    }

    Printer printer{FilePrinter};
};

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
    EXPECT_EQ(textOf(pdf("report")), "text\n");
}

TEST_F(FilePrinterTest, PrintsLinesOneBelowTheOther)
{
    print({"first line", " second line", "third"});
    ASSERT_TRUE(printer.endDocument());
    EXPECT_EQ(textOf(pdf()), "first line\nsecond line\nthird\n");
    EXPECT_EQ(pagesOf(pdf()), 1);
}

TEST_F(FilePrinterTest, PrintsABlankLineAsOneLineOfSpace)
{
    print({"one", "two", "", "four", "   ", "six"});
    ASSERT_TRUE(printer.endDocument());
    const auto words = wordsOf(pdf());
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
    const auto words = wordsOf(pdf());
    ASSERT_EQ(words.size(), 2U);
    EXPECT_GT(words[1].left, words[0].left + 70.0);
}

TEST_F(FilePrinterTest, GoesOnToTheNextPageWhereOneIsFull)
{
    for (int i = 1; i <= 150; ++i)
        ASSERT_TRUE(printer.printLine("line " + std::to_string(i)));
    ASSERT_TRUE(printer.endDocument());

    const int pages = pagesOf(pdf());
    EXPECT_GE(pages, 2);
    QString all;
    for (int page = 1; page <= pages; ++page)
        all += QString::fromStdString(textOf(pdf(), page)).trimmed() + '\n';
    QString expected;
    for (int i = 1; i <= 150; ++i)
        expected += "line " + QString::number(i) + '\n';
    EXPECT_EQ(all, expected);
    for (const Word& word : wordsOf(pdf()))
        EXPECT_LE(word.bottom, 842.0 - 40.0) << word.text.toStdString();
}

TEST_F(FilePrinterTest, StartsEveryPageAtItsTop)
{
    for (int i = 1; i <= 150; ++i)
        ASSERT_TRUE(printer.printLine(std::to_string(i)));
    ASSERT_TRUE(printer.endDocument());
    const auto words = wordsOf(pdf());
    int onTop = 0;
    for (const Word& word : words)
        onTop += word.top == words.front().top ? 1 : 0;
    EXPECT_EQ(onTop, pagesOf(pdf()));
    EXPECT_NEAR(words.front().top, 15.0 / 25.4 * 72.0, 5.0);
}

TEST_F(FilePrinterTest, BreaksALineThatIsWiderThanThePageSoThatNothingIsLost)
{
    QString text;
    for (int i = 0; i < 60; ++i)
        text += "word" + QString::number(i) + ' ';
    print({text.toStdString(), "after"});
    ASSERT_TRUE(printer.endDocument());

    EXPECT_EQ(QString::fromStdString(textOf(pdf())).simplified(), text + "after");
    for (const Word& word : wordsOf(pdf()))
        EXPECT_LE(word.right, 595.0 - 40.0) << word.text.toStdString();
}

TEST_F(FilePrinterTest, BreaksAWordThatIsWiderThanThePage)
{
    print({std::string(300, 'm')});
    ASSERT_TRUE(printer.endDocument());
    EXPECT_EQ(QString::fromStdString(textOf(pdf())).remove('\n').remove(' '), QString(300, 'm'));
}

TEST_F(FilePrinterTest, BreaksALineOverTwoPages)
{
    QString text;
    for (int i = 0; i < 3000; ++i)
        text += "word" + QString::number(i) + ' ';
    print({text.toStdString()});
    ASSERT_TRUE(printer.endDocument());
    QString all;
    for (int page = 1; page <= pagesOf(pdf()); ++page)
        all += QString::fromStdString(textOf(pdf(), page));
    EXPECT_GE(pagesOf(pdf()), 2);
    EXPECT_EQ(all.simplified(), text.trimmed());
}

TEST_F(FilePrinterTest, PrintsInTheCurrentFont)
{
    printer.setFont({.name = "Arial", .size = 14, .bold = true});
    print({"Cooling"});
    printer.setFont({.name = "Arial", .size = 28, .bold = false});
    print({"Cooling"});
    ASSERT_TRUE(printer.endDocument());

    const auto words = wordsOf(pdf());
    ASSERT_EQ(words.size(), 2U);
    const double small = words[0].bottom - words[0].top;
    EXPECT_NEAR(small, 14.0 * 1.15, 1.5);
    EXPECT_NEAR((words[1].bottom - words[1].top) / small, 2.0, 0.1);

    const QString fonts = sayOf("pdffonts", {pdf()});
    EXPECT_TRUE(fonts.contains(QRegularExpression("(LiberationSans|Arial)[-,]?Bold"))) << fonts.toStdString();
    EXPECT_TRUE(fonts.contains(QRegularExpression("(LiberationSans|Arial|ArialMT) "))) << fonts.toStdString();
}

TEST_F(FilePrinterTest, TellsItsFont)
{
    printer.setFont({.name = "Arial", .size = 14, .bold = true});
    EXPECT_EQ(printer.font().name, "Arial");
    EXPECT_EQ(printer.font().size, 14);
    EXPECT_TRUE(printer.font().bold);
}

TEST_F(FilePrinterTest, StartsWithAnUprightFontOfFixedPitch)
{
    // Its letters are measured: some fonts of fixed pitch don't say that they are.
    const QFontMetricsF metrics(QFont(QString::fromStdString(printer.font().name), 100));
    for (const char letter : {'W', '0', '.', ' '})
        EXPECT_EQ(metrics.horizontalAdvance(letter), metrics.horizontalAdvance('i')) << letter;
    EXPECT_EQ(printer.font().size, 10);
    EXPECT_FALSE(printer.font().bold);
}

TEST_F(FilePrinterTest, KeepsItsFontOnAnotherDevice)
{
    printer.setFont({.name = "Arial", .size = 14, .bold = true});
    printer.changeDevice(FilePrinter);
    EXPECT_EQ(printer.font().size, 14);
}

TEST_F(FilePrinterTest, KeepsItsSettingsFromDocumentToDocument)
{
    printer.device().setPageOrientation(QPageLayout::Landscape);
    printer.device().setPageSize(QPageSize(QPageSize::A5));
    printer.device().setColorMode(QPrinter::GrayScale);
    for (const char* name : {"one.pdf", "two.pdf"}) {
        printer.setPort(pdf(name).toStdString());
        print({"text"});
        ASSERT_TRUE(printer.endDocument());
        EXPECT_TRUE(sayOf("pdfinfo", {pdf(name)}).contains(QRegularExpression("595(\\.\\d+)? x (419|420)")));
    }
    EXPECT_EQ(printer.device().pageLayout().orientation(), QPageLayout::Landscape);
    EXPECT_EQ(printer.device().pageLayout().pageSize().id(), QPageSize::A5);
    EXPECT_EQ(printer.device().colorMode(), QPrinter::GrayScale);
}

TEST_F(FilePrinterTest, OffersThePropertiesOfAPrinter)
{
    printer.device().setResolution(600);
    printer.device().setPaperSource(QPrinter::Lower);
    EXPECT_EQ(printer.deviceName(), "Print to File (PDF)");
    EXPECT_EQ(printer.port(), pdf().toStdString());
    EXPECT_EQ(printer.device().resolution(), 600);
    // 210 mm of paper minus two margins of 15 mm, at 600 dots per inch
    EXPECT_NEAR(printer.device().width(), 180.0 / 25.4 * 600.0, 10.0);
    EXPECT_EQ(printer.device().copyCount(), 1);
    EXPECT_EQ(printer.device().duplex(), QPrinter::DuplexNone);
}

TEST_F(FilePrinterTest, KeepsItsSettingsWhileADocumentIsUnfinished)
{
    print({"text"});
    printer.changeSettings([](QPrinter& device) { device.setPageOrientation(QPageLayout::Landscape); });
    printer.setPort(pdf("other.pdf").toStdString());
    printer.changeDevice(FilePrinter);
    EXPECT_EQ(printer.device().pageLayout().orientation(), QPageLayout::Portrait);
    EXPECT_EQ(printer.port(), pdf().toStdString());
    EXPECT_TRUE(printer.isPrinting());
}

TEST_F(FilePrinterTest, LeavesADocumentThatIsNotEndedUnfinished)
{
    {
        Printer shortLived(FilePrinter);
        shortLived.setPort(pdf("unfinished.pdf").toStdString());
        ASSERT_TRUE(shortLived.printLine("never to be seen"));
    }
    EXPECT_THROW(pagesOf(pdf("unfinished.pdf")), std::runtime_error);
}

TEST_F(FilePrinterTest, EndsNothingWithoutADocument)
{
    EXPECT_TRUE(printer.endDocument());
    EXPECT_FALSE(QFile::exists(pdf()));
}

TEST_F(FilePrinterTest, PrintsTextOfAnyLanguage)
{
    print({"Käse 12,5 °C"});
    ASSERT_TRUE(printer.endDocument());
    EXPECT_EQ(textOf(pdf()), "Käse 12,5 °C\n");
}

} // namespace
