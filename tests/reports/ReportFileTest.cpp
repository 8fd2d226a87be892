#include "tests/reports/Reports.h"
#include "tests/support/FullDisk.h"

namespace {

/// The error that something raises, 0 for none.
template <class Action>
int errorOf(Action action)
{
    try {
        action();
    } catch (const RunTimeError& failure) {
        return failure.number();
    }
    return 0;
}

class ReportFileTest : public testing::Test
{
protected:
    std::string path(const char* name = "file.txt") const { return folder.filePath(name).toStdString(); }

    QTemporaryDir folder;
};

TEST_F(ReportFileTest, IsWrittenAndReadLineByLine)
{
    ReportFile.openForOutput(path());
    ReportFile.writeLine("one");
    ReportFile.writeLine("");
    ReportFile.close();
    ReportFile.openForInput(path());
    EXPECT_EQ(ReportFile.readLine(), "one");
    EXPECT_EQ(ReportFile.readLine(), "");
    EXPECT_TRUE(ReportFile.atEnd());
}

TEST_F(ReportFileTest, IsOneFileAtATime)
{
    ReportFile.openForOutput(path());
    EXPECT_EQ(errorOf([&] { ReportFile.openForOutput(path("other")); }), 55);
    EXPECT_EQ(errorOf([&] { ReportFile.openForInput(path()); }), 55);
    ReportFile.close();
    EXPECT_EQ(errorOf([&] { ReportFile.openForInput(path()); }), 0);
}

TEST_F(ReportFileTest, RaisesWhatKeepsItFromOpening)
{
    EXPECT_EQ(errorOf([] { ReportFile.openForOutput(""); }), 75);
    EXPECT_EQ(errorOf([&] { ReportFile.openForOutput(path("missing/file")); }), 76);
    EXPECT_EQ(errorOf([&] { ReportFile.openForOutput(folder.path().toStdString()); }), 75);
    EXPECT_EQ(errorOf([&] { ReportFile.openForInput(path("missing")); }), 53);
    EXPECT_EQ(errorOf([] { ReportFile.openForOutput("/dev/full"); }), 75);
}

TEST_F(ReportFileTest, RaisesAFullDiskAtTheLineAndStaysOpen)
{
    ReportFile.openForOutput(path());
    const FullDisk disk;
    EXPECT_EQ(errorOf([] { ReportFile.writeLine("text"); }), 75);
    EXPECT_TRUE(ReportFile.isOpen());
}

} // namespace
