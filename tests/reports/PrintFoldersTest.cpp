// Where the temporary file of a print lies, and what may be in its place.

#include "tests/platform/Pdf.h"
#include "tests/reports/PrintFrame.h"

#include <QFileInfo>

#include <sys/stat.h>

TEST_F(PrintFrame, EndsSilentlyBeforeAnythingIsWrittenWhereItsFolderCannotBeMade)
{
    QFile obstacle(base + "/tempdata");
    ASSERT_TRUE(obstacle.open(QIODevice::WriteOnly));
    print(PrintToFile(file("out.pdf")), oneLine("text"),
          PrinterFont{.name = "Arial", .size = 77, .bold = true});
    EXPECT_EQ(BytesOf(file("out.pdf")), "(none)");
    EXPECT_NE(CurrentPrinter().font().size, 77);
    EXPECT_FALSE(ReportFile.isOpen());
}

TEST_F(PrintFrame, UsesTheUsersOwnFolderWhereTheApplicationsCannotBeWritten)
{
    base += "/missing";
    print(PrintToFile(file("out.pdf")), oneLine("text"));
    EXPECT_EQ(BytesOf(qEnvironmentVariable("XDG_DATA_HOME") + "/Dunmoor/tempdata/cooling.txt"), " text\n");
    EXPECT_EQ(TextOf(file("out.pdf")), "text\n");
}

TEST_F(PrintFrame, UsesTheUsersOwnFolderWhereOthersMayWriteBesideTheProgram)
{
    QFile victim(file("victim"));
    ASSERT_TRUE(victim.open(QIODevice::WriteOnly));
    ASSERT_EQ(chmod(base.toLocal8Bit(), 01777), 0);
    QDir().mkpath(base + "/tempdata");
    ASSERT_TRUE(QFile::link(file("victim"), temporaryFile())); // as another user could plant it
    print(PrintToFile(file("out.pdf")), oneLine("text"));
    EXPECT_EQ(BytesOf(file("victim")), "");
    EXPECT_EQ(BytesOf(qEnvironmentVariable("XDG_DATA_HOME") + "/Dunmoor/tempdata/cooling.txt"), " text\n");
    EXPECT_EQ(TextOf(file("out.pdf")), "text\n");
}

TEST_F(PrintFrame, EndsSilentlyAtALinkInPlaceOfItsTemporaryFile)
{
    QDir().mkpath(base + "/tempdata");
    ASSERT_TRUE(QFile::link(file("victim"), temporaryFile()));
    for (const std::string content : {"(none)", "kept"}) {
        print(PrintToFile(file("out.pdf")), oneLine("text"));
        EXPECT_EQ(BytesOf(file("victim")), content);
        EXPECT_EQ(BytesOf(file("out.pdf")), "(none)");
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
    print(PrintToFile(file("out.pdf")), oneLine("text"));
    EXPECT_EQ(BytesOf(file("out.pdf")), "(none)");
    EXPECT_FALSE(ReportFile.isOpen());
}

TEST_F(PrintFrame, EndsSilentlyWhereThePdfFileIsAPipe)
{
    print(PrintToFile(file("out.pdf")), [this](ReportWriter& report) {
        report.heading("text");
        ASSERT_EQ(mkfifo(file("out.pdf").toLocal8Bit(), 0600), 0);
    });
    EXPECT_EQ(BytesOf(temporaryFile()), " text\n");
    EXPECT_FALSE(CurrentPrinter().isPrinting());
}

TEST_F(PrintFrame, TakesPathsWithBlanksAndLettersOfAnyLanguage)
{
    base += "/Büro Nord";
    QDir().mkpath(base);
    print(PrintToFile(file("Bericht Ω 1.pdf")), oneLine("23 °C"));
    EXPECT_EQ(BytesOf(temporaryFile()), " 23 °C\n");
    EXPECT_EQ(TextOf(file("Bericht Ω 1.pdf")), "23 °C\n");
}
