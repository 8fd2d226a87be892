// A report on paper, and the temporary file that it passes.

#include "tests/reports/PrintFrame.h"
#include "tests/platform/Pdf.h"
#include "tests/support/FullDisk.h"

#include <QFileInfo>

TEST_F(PrintFrame, WritesTheTemporaryFileAndPrintsIt)
{
    print(PrintToFile(file("out.pdf")), [](ReportWriter& report) {
        report.heading("Heading");
        report.rule();
        report.labelValueAndUnit("Enthalpy = ", "25.31", " Btu/lb.");
    });
    EXPECT_EQ(BytesOf(temporaryFile()),
              " Heading\n -------------------------------------\n Enthalpy =   25.31          Btu/lb.\n");
    EXPECT_EQ(TextOf(file("out.pdf")),
              "Heading\n-------------------------------------\nEnthalpy = 25.31 Btu/lb.\n");
    EXPECT_FALSE(ReportFile.isOpen());
    EXPECT_FALSE(CurrentPrinter().isPrinting());
}

TEST_F(PrintFrame, GivesTheDocumentTheTitleOfTheReport)
{
    print(PrintToFile(file("out.pdf")), oneLine("text"));
    EXPECT_TRUE(
        OutputOf("pdfinfo", {file("out.pdf")}).contains(QRegularExpression("Title: +Cooling Load\n")));
}

TEST_F(PrintFrame, AlignsTheColumnsOnPaper)
{
    print(PrintToFile(file("out.pdf")), [](ReportWriter& report) {
        report.labelValueAndUnit("iiiii = ", "1", "unit");
        report.labelValueAndUnit("MMMMM = ", "1", "unit");
    });
    std::vector<double> lefts;
    for (const Word& word : WordsOf(file("out.pdf"))) {
        if (word.text == "unit")
            lefts.push_back(word.left);
    }
    ASSERT_EQ(lefts.size(), 2U);
    EXPECT_NEAR(lefts[0], lefts[1], 0.5); // points
}

TEST_F(PrintFrame, DoesNothingOnCancel)
{
    bool wasWritten = false;
    CurrentPrinter().setFont({.name = "Arial", .size = 10, .bold = false});
    print([](QDialog& dialog) { Cancel(dialog); }, [&](ReportWriter&) { wasWritten = true; },
          PrinterFont{.name = "Arial", .size = 14, .bold = true});
    EXPECT_FALSE(wasWritten);
    EXPECT_FALSE(QFileInfo::exists(base + "/tempdata"));
    EXPECT_EQ(CurrentPrinter().font().size, 10);
}

TEST_F(PrintFrame, EndsSilentlyOnAFullDisk)
{
    {
        const FullDisk disk;
        print(PrintToFile(file("out.pdf")), oneLine("text"));
    }
    EXPECT_EQ(QFileInfo(file("out.pdf")).size(), 0);
    EXPECT_EQ(dialogs.shown.size(), 1U); // no message after it
}

TEST_F(PrintFrame, LeavesTheLastTemporaryFileOnCancel)
{
    print(PrintToFile(file("out.pdf")), oneLine("first"));
    print([](QDialog& dialog) { Cancel(dialog); }, oneLine("second"));
    EXPECT_EQ(BytesOf(temporaryFile()), " first\n");
}

TEST_F(PrintFrame, AsksBeforeItMakesItsFolder)
{
    print(
        [this](QDialog& dialog) {
            EXPECT_FALSE(QFileInfo::exists(base + "/tempdata"));
            PrintToFile(file("out.pdf"))(dialog);
        },
        oneLine("text"));
    EXPECT_TRUE(QFileInfo(base + "/tempdata").isDir());
    EXPECT_FALSE(QFileInfo::exists(base + "/data"));
}

TEST_F(PrintFrame, OverwritesTheTemporaryFileAtTheNextPrint)
{
    print(PrintToFile(file("one.pdf")), oneLine("a long first report"));
    print(PrintToFile(file("two.pdf")), oneLine("second"));
    EXPECT_EQ(BytesOf(temporaryFile()), " second\n");
    EXPECT_EQ(TextOf(file("one.pdf")), "a long first report\n");
    EXPECT_EQ(TextOf(file("two.pdf")), "second\n");
}

TEST_F(PrintFrame, PrintsBlankLinesAsBlankLines)
{
    print(PrintToFile(file("out.pdf")), [](ReportWriter& report) {
        report.heading("one");
        report.heading("two");
        report.blankLines(1);
        report.emptyColumn4Lines(1);
        report.heading("five");
    });
    const auto words = WordsOf(file("out.pdf"));
    ASSERT_EQ(words.size(), 3U);
    EXPECT_NEAR(words[2].top - words[1].top, 3 * (words[1].top - words[0].top), 0.5);
}

TEST_F(PrintFrame, PrintsOnSeveralPages)
{
    print(PrintToFile(file("out.pdf")), [](ReportWriter& report) {
        for (int i = 0; i < 200; ++i)
            report.heading("line " + std::to_string(i));
    });
    const int pages = PagesOf(file("out.pdf"));
    EXPECT_GE(pages, 2);
    EXPECT_EQ(WordsOf(file("out.pdf")).size(), 400U);
    EXPECT_NE(TextOf(file("out.pdf"), pages).find("line 199"), std::string::npos);
}

TEST_F(PrintFrame, SetsTheFontItIsGivenAndThePrinterKeepsIt)
{
    print(PrintToFile(file("one.pdf")), oneLine("first"),
          PrinterFont{.name = "Arial", .size = 14, .bold = true});
    EXPECT_EQ(CurrentPrinter().font().name, "Arial");
    print(PrintToFile(file("two.pdf")), oneLine("second"));
    for (const char* name : {"one.pdf", "two.pdf"}) {
        const Word word = WordsOf(file(name)).front();
        EXPECT_NEAR(word.bottom - word.top, 14.0 * 1.15, 1.5) << name;
        EXPECT_TRUE(OutputOf("pdffonts", {file(name)}).contains("Bold")) << name;
    }
}

TEST_F(PrintFrame, SetsTheFontBeforeItOpensTheFile)
{
    QDir().mkpath(temporaryFile()); // a folder of that name
    print(PrintToFile(file("out.pdf")), oneLine("text"),
          PrinterFont{.name = "Arial", .size = 14, .bold = true});
    EXPECT_EQ(CurrentPrinter().font().size, 14);
    EXPECT_EQ(BytesOf(file("out.pdf")), "(none)");
}

TEST_F(PrintFrame, PrintsNothingWhereTheReportFailsAndBlocksLaterReports)
{
    print(PrintToFile(file("one.pdf")), [](ReportWriter& report) {
        report.heading("before");
        Raise(ErrorNumber::TypeMismatch);
    });
    EXPECT_EQ(BytesOf(temporaryFile()), " before\n");
    EXPECT_EQ(BytesOf(file("one.pdf")), "(none)");

    print(PrintToFile(file("two.pdf")), oneLine("second"));
    EXPECT_EQ(BytesOf(temporaryFile()), " before\n");
    EXPECT_EQ(BytesOf(file("two.pdf")), "(none)");

    dialogs.answer("SaveDialog", SaveAs(file("saved")));
    SaveReport(form<AnyForm>(), "Save Data to File", oneLine("third"));
    EXPECT_EQ(BytesOf(file("saved")), "(none)");
}

TEST_F(PrintFrame, EndsSilentlyWhereThePrinterTakesNoLine)
{
    print(PrintToFile(file("out.pdf")), [this](ReportWriter& report) {
        report.heading("text");
        QDir().mkpath(file("out.pdf")); // a folder in place of the file
    });
    EXPECT_EQ(BytesOf(temporaryFile()), " text\n");
    EXPECT_TRUE(ReportFile.isOpen());
}
