#include "reports/Commands.h"
#include "tests/reports/Reports.h"
#include "tests/support/FullDisk.h"

#include <QFileDialog>

#include <sys/stat.h>

using namespace forms;

namespace {

class SaveFrame : public ReportCommandTest
{
protected:
    /// Saves a report of one line, with the given answer to the dialog.
    void save(Dialogs::Answer answer, const std::string& text = "text")
    {
        dialogs.answer("SaveDialog", std::move(answer));
        saveWithoutDialog(text);
    }

    void saveWithoutDialog(const std::string& text = "text")
    {
        SaveReport(form<AnyForm>(), "Save Cooling Load Data to File",
                   [&](ReportWriter& report) { report.heading(text); });
    }

    void saveFailing(Dialogs::Answer answer, const WriteReport& report)
    {
        dialogs.answer("SaveDialog", std::move(answer));
        SaveReport(form<AnyForm>(), "Save Data to File", report);
    }
};

TEST_F(SaveFrame, MakesTheDataFolderAndStartsTheDialogThere)
{
    save([](QDialog& dialog) {
        EXPECT_TRUE(QDir(base + "/data").exists());
        EXPECT_EQ(static_cast<QFileDialog&>(dialog).directory().path(), base + "/data");
        EXPECT_EQ(dialog.windowTitle(), "Save Cooling Load Data to File");
        Cancel(dialog);
    });
    EXPECT_EQ(QDir(base).entryList(QDir::NoDotAndDotDot | QDir::AllEntries), QStringList{"data"});
}

TEST_F(SaveFrame, UsesTheDataFolderThatIsThere)
{
    QDir().mkpath(base + "/data/kept");
    save(SaveAs("report"));
    EXPECT_TRUE(QDir(base + "/data/kept").exists());
    EXPECT_EQ(BytesOf(base + "/data/report"), " text\n");
}

TEST_F(SaveFrame, WritesStraightIntoTheChosenFileAndClosesIt)
{
    dialogs.answer("SaveDialog", SaveAs(file("report.txt")));
    SaveReport(form<AnyForm>(), "Save Data to File", [this](ReportWriter& report) {
        EXPECT_TRUE(ReportFile.isOpen());
        report.heading("one");
        EXPECT_EQ(BytesOf(file("report.txt")), " one\n");
        report.heading("two");
    });
    EXPECT_EQ(BytesOf(file("report.txt")), " one\n two\n");
    EXPECT_FALSE(ReportFile.isOpen());
    EXPECT_FALSE(QDir(base + "/tempdata").exists());
}

TEST_F(SaveFrame, KeepsANameWithoutExtension)
{
    save(SaveAs("report"));
    EXPECT_EQ(QDir(base + "/data").entryList(QDir::Files), QStringList{"report"});
}

TEST_F(SaveFrame, TakesNamesWithBlanksAndLettersOfAnyLanguage)
{
    save(SaveAs(file("Büro Nord 3 Ω.txt")));
    EXPECT_EQ(BytesOf(file("Büro Nord 3 Ω.txt")), " text\n");
}

TEST_F(SaveFrame, ReplacesAnExistingReportWithoutAQuestion)
{
    save(SaveAs("report"), "a long first report");
    save(SaveAs("report"), "second");
    EXPECT_EQ(BytesOf(base + "/data/report"), " second\n");
    EXPECT_EQ(dialogs.shown, (std::vector<QString>{"SaveDialog", "SaveDialog"}));
}

TEST_F(SaveFrame, TouchesNoFileOnCancel)
{
    save(SaveAs("report"), "before");
    save([](QDialog& dialog) {
        Child<QLineEdit>(dialog, "fileNameEdit").setText("report");
        Cancel(dialog);
    });
    EXPECT_EQ(BytesOf(base + "/data/report"), " before\n");
    EXPECT_EQ(QDir(base + "/data").entryList(QDir::Files), QStringList{"report"});
    EXPECT_FALSE(ReportFile.isOpen());
}

TEST_F(SaveFrame, WorksAgainAfterCancel)
{
    save([](QDialog& dialog) { Cancel(dialog); });
    save(SaveAs("report"));
    EXPECT_EQ(BytesOf(base + "/data/report"), " text\n");
}

TEST_F(SaveFrame, EndsBeforeTheDialogWhereTheDataFolderCannotBeMade)
{
    QFile obstacle(base + "/data");
    ASSERT_TRUE(obstacle.open(QIODevice::WriteOnly));
    saveWithoutDialog();
    EXPECT_TRUE(dialogs.shown.empty());
}

TEST_F(SaveFrame, ProposesTheUsersOwnFolderWhereTheApplicationsCannotBeWritten)
{
    const QString own = qEnvironmentVariable("XDG_DATA_HOME") + "/Dunmoor/data";
    base += "/missing";
    save([&own](QDialog& dialog) {
        EXPECT_EQ(static_cast<QFileDialog&>(dialog).directory().path(), own);
        SaveAs("report")(dialog);
    });
    EXPECT_EQ(BytesOf(own + "/report"), " text\n");
}

TEST_F(SaveFrame, EndsSilentlyWhereTheFileCannotBeOpenedAndWorksAgain)
{
    QFile obstacle(file("obstacle"));
    ASSERT_TRUE(obstacle.open(QIODevice::WriteOnly));
    for (const QString& bad :
         {file("obstacle/report"), file("missing/report"), QString("/proc/no-such-file")})
        save(SaveAs(bad));
    EXPECT_FALSE(ReportFile.isOpen());
    EXPECT_FALSE(QDir(file("missing")).exists());
    save(SaveAs("report"));
    EXPECT_EQ(BytesOf(base + "/data/report"), " text\n");
    EXPECT_EQ(dialogs.shown.size(), 4U); // no message among them
}

TEST_F(SaveFrame, EndsSilentlyOnWhatIsNoRegularFileAndWorksAgain)
{
    ASSERT_EQ(mkfifo(file("pipe").toLocal8Bit(), 0600), 0);
    for (const QString& bad : {file("pipe"), QString("/dev/full"), QString("/dev/null")})
        save(SaveAs(bad));
    EXPECT_FALSE(ReportFile.isOpen());
    save(SaveAs("report"));
    EXPECT_EQ(BytesOf(base + "/data/report"), " text\n");
    EXPECT_EQ(dialogs.shown.size(), 4U); // no message among them
}

TEST_F(SaveFrame, FollowsALinkThatTheUserChooses)
{
    ASSERT_TRUE(QFile::link(file("target"), file("link")));
    save(SaveAs(file("link")));
    EXPECT_EQ(BytesOf(file("target")), " text\n");
    EXPECT_TRUE(QFileInfo(file("link")).isSymLink());
}

TEST_F(SaveFrame, StaysOpenAfterAFullDiskSoThatLaterSavesEndSilently)
{
    saveFailing(SaveAs("first"), [](ReportWriter& report) {
        const FullDisk disk;
        report.heading("text");
    });
    EXPECT_TRUE(ReportFile.isOpen());
    save(SaveAs("report"));
    EXPECT_EQ(BytesOf(base + "/data/report"), "(none)");
    EXPECT_EQ(dialogs.shown.size(), 2U);
}

TEST_F(SaveFrame, EndsSilentlyWhereTheChosenFolderHasVanished)
{
    save([this](QDialog& dialog) {
        SaveAs(file("report"))(dialog);
        QDir(file("")).removeRecursively();
    });
    EXPECT_EQ(BytesOf(file("report")), "(none)");
    save(SaveAs("report"));
    EXPECT_EQ(BytesOf(base + "/data/report"), " text\n");
}

TEST_F(SaveFrame, WorksWhereTheWorkingFolderHasVanished)
{
    const QString before = QDir::currentPath();
    QDir::setCurrent(file(""));
    QDir(file("")).removeRecursively();
    save(SaveAs(base + "/report"));
    QDir::setCurrent(before);
    EXPECT_EQ(BytesOf(base + "/report"), " text\n");
}

TEST_F(SaveFrame, StaysOpenAfterAFailingReportWithTheLinesBeforeTheFailure)
{
    saveFailing(SaveAs("first"), [](ReportWriter& report) {
        report.heading("before");
        Raise(ErrorNumber::TypeMismatch);
    });
    EXPECT_EQ(BytesOf(base + "/data/first"), " before\n");
    EXPECT_TRUE(ReportFile.isOpen());
    save(SaveAs("second"));
    EXPECT_EQ(BytesOf(base + "/data/second"), "(none)");
}

TEST_F(SaveFrame, EndsSilentlyWhateverTheFailure)
{
    saveFailing(SaveAs("report"), [](ReportWriter&) {
        UnitSystem = 7; // beyond every table
        UnitLabel(TempUnit);
    });
    EXPECT_TRUE(ReportFile.isOpen());
}

} // namespace
