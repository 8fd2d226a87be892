// The font and the settings of the file printer, and documents that are not ended.

#include "tests/platform/FilePrinter.h"

#include <QFile>
#include <QFontMetricsF>

TEST_F(FilePrinterTest, PrintsInTheCurrentFont)
{
    printer.setFont({.name = "Arial", .size = 14, .bold = true});
    print({"Cooling"});
    printer.setFont({.name = "Arial", .size = 28, .bold = false});
    print({"Cooling"});
    ASSERT_TRUE(printer.endDocument());

    const auto words = WordsOf(pdf());
    ASSERT_EQ(words.size(), 2U);
    const double small = words[0].bottom - words[0].top;
    EXPECT_NEAR(small, 14.0 * 1.15, 1.5);
    EXPECT_NEAR((words[1].bottom - words[1].top) / small, 2.0, 0.1);

    const QString fonts = OutputOf("pdffonts", {pdf()});
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
        EXPECT_TRUE(
            OutputOf("pdfinfo", {pdf(name)}).contains(QRegularExpression("595(\\.\\d+)? x (419|420)")));
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
    EXPECT_THROW(PagesOf(pdf("unfinished.pdf")), std::runtime_error);
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
    EXPECT_EQ(TextOf(pdf()), "Käse 12,5 °C\n");
}
