#include "platform/TextFile.h"

#include "tests/support/FullDisk.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

class TextFileTest : public testing::Test
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
        while (!file.atEnd()) {
            lines.emplace_back();
            EXPECT_EQ(file.readLine(lines.back()), FileFault::None);
        }
        return lines;
    }

    QTemporaryDir folder;
    TextFile file;
};

TEST_F(TextFileTest, EndsEveryLineAndKeepsTrailingBlanks)
{
    ASSERT_EQ(file.openForOutput(path()), FileFault::None);
    EXPECT_EQ(file.writeLine("one"), FileFault::None);
    EXPECT_EQ(file.writeLine(""), FileFault::None);
    EXPECT_EQ(file.writeLine("   "), FileFault::None);
    file.close();
    EXPECT_EQ(bytes(), "one\n\n   \n");
}

TEST_F(TextFileTest, WritesUtf8)
{
    ASSERT_EQ(file.openForOutput(path()), FileFault::None);
    EXPECT_EQ(file.writeLine("1\u202f234 °C"), FileFault::None);
    file.close();
    EXPECT_EQ(bytes(), "1\xe2\x80\xaf"
                       "234 \xc2\xb0"
                       "C\n");
}

TEST_F(TextFileTest, HasEachLineInTheFileAtOnce)
{
    ASSERT_EQ(file.openForOutput(path()), FileFault::None);
    EXPECT_EQ(file.writeLine("one"), FileFault::None);
    EXPECT_EQ(bytes(), "one\n");
}

TEST_F(TextFileTest, EmptiesWhatStandsThere)
{
    makeFile("a long text that was here before\n");
    ASSERT_EQ(file.openForOutput(path()), FileFault::None);
    EXPECT_EQ(file.writeLine("new"), FileFault::None);
    EXPECT_EQ(bytes(), "new\n");
}

TEST_F(TextFileTest, ReadsBackWhatItWrote)
{
    ASSERT_EQ(file.openForOutput(path()), FileFault::None);
    const std::vector<std::string> lines{"one", "", "   ", " zwölf"};
    for (const std::string& line : lines)
        EXPECT_EQ(file.writeLine(line), FileFault::None);
    file.close();
    ASSERT_EQ(file.openForInput(path()), FileFault::None);
    EXPECT_EQ(allLines(), lines);
}

TEST_F(TextFileTest, ReadsALastLineWithoutEndAndLinesEndedByTwoBytes)
{
    makeFile("one\r\ntwo");
    ASSERT_EQ(file.openForInput(path()), FileFault::None);
    EXPECT_EQ(allLines(), (std::vector<std::string>{"one", "two"}));
}

TEST_F(TextFileTest, FindsAnEmptyFileAtItsEnd)
{
    makeFile("");
    ASSERT_EQ(file.openForInput(path()), FileFault::None);
    EXPECT_TRUE(file.atEnd());
}

TEST_F(TextFileTest, TellsWhyItCannotBeOpened)
{
    EXPECT_EQ(file.openForOutput(""), FileFault::Access);
    EXPECT_EQ(file.openForInput(""), FileFault::Access);
    EXPECT_EQ(file.openForOutput(path("missing/file")), FileFault::PathNotFound);
    EXPECT_EQ(file.openForInput(path("missing/file")), FileFault::PathNotFound);
    EXPECT_EQ(file.openForInput(path("missing")), FileFault::FileNotFound);
    EXPECT_EQ(file.openForOutput(folder.path().toStdString()), FileFault::Access); // a folder
    EXPECT_EQ(file.openForOutput("/proc/no-such-file"), FileFault::Access);
    makeFile("");
    EXPECT_EQ(file.openForOutput(path("file.txt/below")), FileFault::PathNotFound);
    EXPECT_FALSE(file.isOpen());
}

TEST_F(TextFileTest, CannotBeOpenedTwice)
{
    ASSERT_EQ(file.openForOutput(path()), FileFault::None);
    EXPECT_EQ(file.openForOutput(path("other")), FileFault::AlreadyOpen);
    EXPECT_EQ(file.openForInput(path()), FileFault::AlreadyOpen);
    EXPECT_EQ(bytes("other"), "(none)");
    file.close();
    EXPECT_EQ(file.openForOutput(path("other")), FileFault::None);
}

TEST_F(TextFileTest, FailsWithTheLineThatFindsNoRoomAndStaysOpen)
{
    ASSERT_EQ(file.openForOutput(path()), FileFault::None);
    const FullDisk disk;
    EXPECT_EQ(file.writeLine("text"), FileFault::Access);
    EXPECT_TRUE(file.isOpen());
}

TEST_F(TextFileTest, RefusesAPipeAndDoesNotWaitForItsOtherEnd)
{
    ASSERT_EQ(mkfifo(path("pipe").c_str(), 0600), 0);
    EXPECT_EQ(file.openForOutput(path("pipe")), FileFault::Access);
    EXPECT_EQ(file.openForInput(path("pipe")), FileFault::Access);
    const int reader = open(path("pipe").c_str(), O_RDONLY | O_NONBLOCK);
    EXPECT_EQ(file.openForOutput(path("pipe")), FileFault::Access) << "also while somebody reads";
    close(reader);
}

TEST_F(TextFileTest, RefusesDevices)
{
    for (const char* device : {"/dev/null", "/dev/full", "/dev/zero"}) {
        EXPECT_EQ(file.openForOutput(device), FileFault::Access) << device;
        EXPECT_EQ(file.openForInput(device), FileFault::Access) << device;
    }
}

TEST_F(TextFileTest, FollowsALinkUnlessItIsToldNotTo)
{
    makeFile("of somebody\n");
    ASSERT_TRUE(QFile::link(folder.filePath("file.txt"), folder.filePath("link")));
    EXPECT_EQ(file.openForOutput(path("link"), Links::Refuse), FileFault::Access);
    EXPECT_EQ(file.openForInput(path("link"), Links::Refuse), FileFault::Access);
    EXPECT_EQ(bytes(), "of somebody\n");
    ASSERT_EQ(file.openForOutput(path("link")), FileFault::None);
    EXPECT_EQ(file.writeLine("new"), FileFault::None);
    EXPECT_EQ(bytes(), "new\n");
}

TEST_F(TextFileTest, RefusesALoopOfLinks)
{
    ASSERT_TRUE(QFile::link(folder.filePath("b"), folder.filePath("a")));
    ASSERT_TRUE(QFile::link(folder.filePath("a"), folder.filePath("b")));
    EXPECT_EQ(file.openForOutput(path("a")), FileFault::Access);
}

} // namespace
