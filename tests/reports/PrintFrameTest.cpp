#include "reports/Commands.h"
#include "tests/platform/Pdf.h"
#include "tests/reports/Reports.h"

#include <QFileInfo>

#include <sys/stat.h>

using namespace forms;

namespace {

class PrintFrame : public ReportCommandTest
{
protected:
    void print(Dialogs::Answer answer, const WriteReport& report,
               const std::optional<PrinterFont>& font = std::nullopt)
    {
        dialogs.answer("PrintDialog", std::move(answer));
        PrintReport(form<AnyForm>(), "Cooling Load", "cooling.txt", report, font);
    }

    static WriteReport oneLine(const std::string& text)
    {
        return [text](ReportWriter& report) { report.heading(text); };
    }

    static QString temporaryFile() { return base + "/tempdata/cooling.txt"; }
};

TEST_F(PrintFrame, WritesTheTemporaryFileAndPrintsIt)
{
    print(printTo(file("out.pdf")), [](ReportWriter& report) {
        report.heading("Heading");
        report.rule();
        report.labelValueAndUnit("Enthalpy = ", "25.31", " Btu/lb.");
    });
    EXPECT_EQ(bytesOf(temporaryFile()),
              " Heading\n -------------------------------------\n Enthalpy =   25.31          Btu/lb.\n");
    EXPECT_EQ(textOf(file("out.pdf")),
              "Heading\n-------------------------------------\nEnthalpy = 25.31 Btu/lb.\n");
    EXPECT_FALSE(ReportFile.isOpen());
    EXPECT_FALSE(CurrentPrinter().isPrinting());
}

TEST_F(PrintFrame, GivesTheDocumentTheTitleOfTheReport)
{
    print(printTo(file("out.pdf")), oneLine("text"));
    EXPECT_TRUE(sayOf("pdfinfo", {file("out.pdf")}).contains(QRegularExpression("Title: +Cooling Load\n")));
}

TEST_F(PrintFrame, AlignsTheColumnsOnPaper)
{
    print(printTo(file("out.pdf")), [](ReportWriter& report) {
        report.labelValueAndUnit("iiiii = ", "1", "unit");
        report.labelValueAndUnit("MMMMM = ", "1", "unit");
    });
    std::vector<double> lefts;
    for (const Word& word : wordsOf(file("out.pdf"))) {
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
    print([](QDialog& dialog) { cancel(dialog); }, [&](ReportWriter&) { wasWritten = true; },
          PrinterFont{.name = "Arial", .size = 14, .bold = true});
    EXPECT_FALSE(wasWritten);
    EXPECT_FALSE(QFileInfo::exists(base + "/tempdata"));
    EXPECT_EQ(CurrentPrinter().font().size, 10);
}

TEST_F(PrintFrame, LeavesTheLastTemporaryFileOnCancel)
{
    print(printTo(file("out.pdf")), oneLine("first"));
    print([](QDialog& dialog) { cancel(dialog); }, oneLine("second"));
    EXPECT_EQ(bytesOf(temporaryFile()), " first\n");
}

TEST_F(PrintFrame, AsksBeforeItMakesItsFolder)
{
    print(
        [this](QDialog& dialog) {
            EXPECT_FALSE(QFileInfo::exists(base + "/tempdata"));
            printTo(file("out.pdf"))(dialog);
        },
        oneLine("text"));
    EXPECT_TRUE(QFileInfo(base + "/tempdata").isDir());
    EXPECT_FALSE(QFileInfo::exists(base + "/data"));
}

TEST_F(PrintFrame, OverwritesTheTemporaryFileAtTheNextPrint)
{
    print(printTo(file("one.pdf")), oneLine("a long first report"));
    print(printTo(file("two.pdf")), oneLine("second"));
    EXPECT_EQ(bytesOf(temporaryFile()), " second\n");
    EXPECT_EQ(textOf(file("one.pdf")), "a long first report\n");
    EXPECT_EQ(textOf(file("two.pdf")), "second\n");
}

TEST_F(PrintFrame, PrintsBlankLinesAsBlankLines)
{
    print(printTo(file("out.pdf")), [](ReportWriter& report) {
        report.heading("one");
        report.heading("two");
        report.blankLines(1);
        report.emptyColumn4Lines(1);
        report.heading("five");
    });
    const auto words = wordsOf(file("out.pdf"));
    ASSERT_EQ(words.size(), 3U);
    EXPECT_NEAR(words[2].top - words[1].top, 3 * (words[1].top - words[0].top), 0.5);
}

TEST_F(PrintFrame, PrintsOnSeveralPages)
{
    print(printTo(file("out.pdf")), [](ReportWriter& report) {
        for (int i = 0; i < 200; ++i)
            report.heading("line " + std::to_string(i));
    });
    const int pages = pagesOf(file("out.pdf"));
    EXPECT_GE(pages, 2);
    EXPECT_EQ(wordsOf(file("out.pdf")).size(), 400U);
    EXPECT_NE(textOf(file("out.pdf"), pages).find("line 199"), std::string::npos);
}

TEST_F(PrintFrame, SetsTheFontItIsGivenAndThePrinterKeepsIt)
{
    print(printTo(file("one.pdf")), oneLine("first"), PrinterFont{.name = "Arial", .size = 14, .bold = true});
    EXPECT_EQ(CurrentPrinter().font().name, "Arial");
    print(printTo(file("two.pdf")), oneLine("second"));
    for (const char* name : {"one.pdf", "two.pdf"}) {
        const Word word = wordsOf(file(name)).front();
        EXPECT_NEAR(word.bottom - word.top, 14.0 * 1.15, 1.5) << name;
        EXPECT_TRUE(sayOf("pdffonts", {file(name)}).contains("Bold")) << name;
    }
}

TEST_F(PrintFrame, EndsSilentlyBeforeAnythingIsWrittenWhereItsFolderCannotBeMade)
{
    QFile obstacle(base + "/tempdata");
    ASSERT_TRUE(obstacle.open(QIODevice::WriteOnly));
    print(printTo(file("out.pdf")), oneLine("text"), PrinterFont{.name = "Arial", .size = 77, .bold = true});
    EXPECT_EQ(bytesOf(file("out.pdf")), "(none)");
    EXPECT_NE(CurrentPrinter().font().size, 77);
    EXPECT_FALSE(ReportFile.isOpen());
}

TEST_F(PrintFrame, SetsTheFontBeforeItOpensTheFile)
{
    QDir().mkpath(temporaryFile()); // a folder of that name
    print(printTo(file("out.pdf")), oneLine("text"), PrinterFont{.name = "Arial", .size = 14, .bold = true});
    EXPECT_EQ(CurrentPrinter().font().size, 14);
    EXPECT_EQ(bytesOf(file("out.pdf")), "(none)");
}

TEST_F(PrintFrame, PrintsNothingWhereTheReportFailsAndBlocksLaterReports)
{
    print(printTo(file("one.pdf")), [](ReportWriter& report) {
        report.heading("before");
        Raise(ErrorNumber::TypeMismatch);
    });
    EXPECT_EQ(bytesOf(temporaryFile()), " before\n");
    EXPECT_EQ(bytesOf(file("one.pdf")), "(none)");

    print(printTo(file("two.pdf")), oneLine("second"));
    EXPECT_EQ(bytesOf(temporaryFile()), " before\n");
    EXPECT_EQ(bytesOf(file("two.pdf")), "(none)");

    dialogs.answer("SaveDialog", saveAs(file("saved")));
    SaveReport(form<AnyForm>(), "Save Data to File", oneLine("third"));
    EXPECT_EQ(bytesOf(file("saved")), "(none)");
}

TEST_F(PrintFrame, EndsSilentlyWhereThePrinterTakesNoLine)
{
    print(printTo(file("out.pdf")), [this](ReportWriter& report) {
        report.heading("text");
        QDir().mkpath(file("out.pdf")); // a folder in place of the file
    });
    EXPECT_EQ(bytesOf(temporaryFile()), " text\n");
    EXPECT_TRUE(ReportFile.isOpen());
}

TEST_F(PrintFrame, UsesTheUsersOwnFolderWhereTheApplicationsCannotBeWritten)
{
    base += "/missing";
    print(printTo(file("out.pdf")), oneLine("text"));
    EXPECT_EQ(bytesOf(qEnvironmentVariable("XDG_DATA_HOME") + "/Dunmoor/tempdata/cooling.txt"), " text\n");
    EXPECT_EQ(textOf(file("out.pdf")), "text\n");
}

TEST_F(PrintFrame, UsesTheUsersOwnFolderWhereOthersMayWriteBesideTheProgram)
{
    QFile victim(file("victim"));
    ASSERT_TRUE(victim.open(QIODevice::WriteOnly));
    ASSERT_EQ(chmod(base.toLocal8Bit(), 01777), 0);
    QDir().mkpath(base + "/tempdata");
    ASSERT_TRUE(QFile::link(file("victim"), temporaryFile())); // as another user could plant it
    print(printTo(file("out.pdf")), oneLine("text"));
    EXPECT_EQ(bytesOf(file("victim")), "");
    EXPECT_EQ(bytesOf(qEnvironmentVariable("XDG_DATA_HOME") + "/Dunmoor/tempdata/cooling.txt"), " text\n");
    EXPECT_EQ(textOf(file("out.pdf")), "text\n");
}

TEST_F(PrintFrame, EndsSilentlyAtALinkInPlaceOfItsTemporaryFile)
{
    QDir().mkpath(base + "/tempdata");
    ASSERT_TRUE(QFile::link(file("victim"), temporaryFile()));
    for (const std::string content : {"(none)", "kept"}) {
        print(printTo(file("out.pdf")), oneLine("text"));
        EXPECT_EQ(bytesOf(file("victim")), content);
        EXPECT_EQ(bytesOf(file("out.pdf")), "(none)");
        EXPECT_FALSE(ReportFile.isOpen());
        QFile victim(file("victim")); // the second time, the link leads to a file
        ASSERT_TRUE(victim.open(QIODevice::WriteOnly));
        victim.write("kept");
    }
}

TEST_F(PrintFrame, EndsSilentlyAtAPipeInPlaceOfItsTemporaryFile)
{
    QDir().mkpath(base + "/tempdata");
    ASSERT_EQ(mkfifo(temporaryFile().toLocal8Bit(), 0600), 0);
    print(printTo(file("out.pdf")), oneLine("text"));
    EXPECT_EQ(bytesOf(file("out.pdf")), "(none)");
    EXPECT_FALSE(ReportFile.isOpen());
}

TEST_F(PrintFrame, EndsSilentlyWhereThePdfFileIsAPipe)
{
    print(printTo(file("out.pdf")), [this](ReportWriter& report) {
        report.heading("text");
        ASSERT_EQ(mkfifo(file("out.pdf").toLocal8Bit(), 0600), 0);
    });
    EXPECT_EQ(bytesOf(temporaryFile()), " text\n");
    EXPECT_FALSE(CurrentPrinter().isPrinting());
}

TEST_F(PrintFrame, TakesPathsWithBlanksAndLettersOfAnyLanguage)
{
    base += "/Büro Nord";
    QDir().mkpath(base);
    print(printTo(file("Bericht Ω 1.pdf")), oneLine("23 °C"));
    EXPECT_EQ(bytesOf(temporaryFile()), " 23 °C\n");
    EXPECT_EQ(textOf(file("Bericht Ω 1.pdf")), "23 °C\n");
}

} // namespace
