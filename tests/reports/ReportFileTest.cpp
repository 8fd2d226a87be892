#include "tests/reports/Reports.h"
#include "tests/support/FullDisk.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

/// The number of the error that an action throws, or 0.
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

constexpr int none = 0;
constexpr int fileNotFound = 53;
constexpr int alreadyOpen = 55;
constexpr int access = 75;
constexpr int pathNotFound = 76;

class ReportFileTest : public testing::Test
{
protected:
    std::string path(const char* name = "file.txt") const { return folder.filePath(name).toStdString(); }

    QByteArray bytes(const char* name = "file.txt") const
    {
        QFile read(folder.filePath(name));
        return read.open(QIODevice::ReadOnly) ? read.readAll() : QByteArray("(none)");
    }

    void makeFile(const QByteArray& content) const
    {
        QFile write(folder.filePath("file.txt"));
        ASSERT_TRUE(write.open(QIODevice::WriteOnly));
        write.write(content);
    }

    std::vector<std::string> allLines()
    {
        std::vector<std::string> lines;
        while (!ReportFile.atEnd()) {
            lines.push_back(ReportFile.readLine());
        }
        return lines;
    }

    static int forOutput(const std::string& path, Links links = Links::Follow)
    {
        return errorOf([&] { ReportFile.openForOutput(path, links); });
    }

    static int forInput(const std::string& path, Links links = Links::Follow)
    {
        return errorOf([&] { ReportFile.openForInput(path, links); });
    }

    QTemporaryDir folder;
};

TEST_F(ReportFileTest, EndsEveryLineAndKeepsTrailingBlanks)
{
    ASSERT_EQ(forOutput(path()), none);
    ReportFile.writeLine("one");
    ReportFile.writeLine("");
    ReportFile.writeLine("   ");
    ReportFile.close();
    EXPECT_EQ(bytes(), "one\n\n   \n");
}

TEST_F(ReportFileTest, WritesUtf8)
{
    ASSERT_EQ(forOutput(path()), none);
    ReportFile.writeLine("1\u202f234 °C");
    ReportFile.close();
    EXPECT_EQ(bytes(), "1\xe2\x80\xaf"
                       "234 \xc2\xb0"
                       "C\n");
}

TEST_F(ReportFileTest, HasEachLineInTheFileAtOnce)
{
    ASSERT_EQ(forOutput(path()), none);
    ReportFile.writeLine("one");
    EXPECT_EQ(bytes(), "one\n");
}

TEST_F(ReportFileTest, EmptiesWhatStandsThere)
{
    makeFile("a long text that was here before\n");
    ASSERT_EQ(forOutput(path()), none);
    ReportFile.writeLine("new");
    EXPECT_EQ(bytes(), "new\n");
}

TEST_F(ReportFileTest, ReadsBackWhatItWrote)
{
    ASSERT_EQ(forOutput(path()), none);
    const std::vector<std::string> lines{"one", "", "   ", " zwölf"};
    for (const std::string& line : lines)
        ReportFile.writeLine(line);
    ReportFile.close();
    ASSERT_EQ(forInput(path()), none);
    EXPECT_EQ(allLines(), lines);
}

TEST_F(ReportFileTest, ReadsALastLineWithoutEndAndLinesEndedByTwoBytes)
{
    makeFile("one\r\ntwo");
    ASSERT_EQ(forInput(path()), none);
    EXPECT_EQ(allLines(), (std::vector<std::string>{"one", "two"}));
}

TEST_F(ReportFileTest, FindsAnEmptyFileAtItsEnd)
{
    makeFile("");
    ASSERT_EQ(forInput(path()), none);
    EXPECT_TRUE(ReportFile.atEnd());
}

TEST_F(ReportFileTest, RaisesWhatKeepsItFromOpening)
{
    EXPECT_EQ(forOutput(""), access);
    EXPECT_EQ(forInput(""), access);
    EXPECT_EQ(forOutput(path("missing/file")), pathNotFound);
    EXPECT_EQ(forInput(path("missing/file")), pathNotFound);
    EXPECT_EQ(forInput(path("missing")), fileNotFound);
    EXPECT_EQ(forOutput(folder.path().toStdString()), access); // a folder
    EXPECT_EQ(forOutput("/proc/no-such-file"), access);
    makeFile("");
    EXPECT_EQ(forOutput(path("file.txt/below")), pathNotFound);
    EXPECT_FALSE(ReportFile.isOpen());
}

TEST_F(ReportFileTest, CannotBeOpenedTwice)
{
    ASSERT_EQ(forOutput(path()), none);
    EXPECT_EQ(forOutput(path("other")), alreadyOpen);
    EXPECT_EQ(forInput(path()), alreadyOpen);
    EXPECT_EQ(bytes("other"), "(none)");
    ReportFile.close();
    EXPECT_EQ(forOutput(path("other")), none);
}

TEST_F(ReportFileTest, FailsWithTheLineThatFindsNoRoomAndStaysOpen)
{
    ASSERT_EQ(forOutput(path()), none);
    const FullDisk disk;
    EXPECT_EQ(errorOf([] { ReportFile.writeLine("text"); }), access);
    EXPECT_TRUE(ReportFile.isOpen());
}

TEST_F(ReportFileTest, RefusesAPipeAndDoesNotWaitForItsOtherEnd)
{
    ASSERT_EQ(mkfifo(path("pipe").c_str(), 0600), 0);
    EXPECT_EQ(forOutput(path("pipe")), access);
    EXPECT_EQ(forInput(path("pipe")), access);
    const int reader = open(path("pipe").c_str(), O_RDONLY | O_NONBLOCK);
    EXPECT_EQ(forOutput(path("pipe")), access) << "also while somebody reads";
    close(reader);
}

TEST_F(ReportFileTest, RefusesDevices)
{
    for (const char* device : {"/dev/null", "/dev/full", "/dev/zero"}) {
        EXPECT_EQ(forOutput(device), access) << device;
        EXPECT_EQ(forInput(device), access) << device;
    }
}

TEST_F(ReportFileTest, FollowsALinkUnlessItIsToldNotTo)
{
    makeFile("of somebody\n");
    ASSERT_TRUE(QFile::link(folder.filePath("file.txt"), folder.filePath("link")));
    EXPECT_EQ(forOutput(path("link"), Links::Refuse), access);
    EXPECT_EQ(forInput(path("link"), Links::Refuse), access);
    EXPECT_EQ(bytes(), "of somebody\n");
    ASSERT_EQ(forOutput(path("link")), none);
    ReportFile.writeLine("new");
    EXPECT_EQ(bytes(), "new\n");
}

TEST_F(ReportFileTest, RefusesALoopOfLinks)
{
    ASSERT_TRUE(QFile::link(folder.filePath("b"), folder.filePath("a")));
    ASSERT_TRUE(QFile::link(folder.filePath("a"), folder.filePath("b")));
    EXPECT_EQ(forOutput(path("a")), access);
}

} // namespace
