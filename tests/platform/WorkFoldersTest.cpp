#include "platform/WorkFolders.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QFile>
#include <QTemporaryDir>

#include <sys/stat.h>
#include <unistd.h>

namespace {

class WorkFoldersTest : public testing::Test
{
protected:
    void SetUp() override { QCoreApplication::setApplicationName("Dunmoor"); }

    std::string path(const char* name) const { return folder.filePath(name).toStdString(); }

    void makeFile(const char* name) const
    {
        QFile file(folder.filePath(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    }

    std::string application() const { return folder.path().toStdString(); }

    static std::string ofTheUser(const char* name)
    {
        return qgetenv("XDG_DATA_HOME").toStdString() + "/Dunmoor/" + name;
    }

    /// Gives everybody these rights to a folder.
    static void allow(const std::string& theFolder, const std::string& rights)
    {
        ASSERT_EQ(chmod(theFolder.c_str(), rights == "rwx" ? 0777 : 0555), 0);
    }

    /// Root may write everywhere: goes on as somebody else, for the rest of the test's process.
    static void becomeSomebodyElse() { ASSERT_TRUE(geteuid() != 0 || setresuid(65534, 65534, 65534) == 0); }

    QTemporaryDir folder;
};

TEST_F(WorkFoldersTest, LieBelowTheApplication)
{
    EXPECT_EQ(WorkFolder(application(), "data"), path("data"));
    EXPECT_FALSE(FolderExists(path("data"))); // asking makes nothing
}

TEST_F(WorkFoldersTest, LieBelowTheUsersFolderWhereTheApplicationsIsReadOnly)
{
    allow(application(), "r-x");
    becomeSomebodyElse();
    EXPECT_EQ(WorkFolder(application(), "data"), ofTheUser("data"));
}

TEST_F(WorkFoldersTest, StayWhereTheyAreMadeAndWritable)
{
    ASSERT_TRUE(MakeFolder(path("data")));
    allow(path("data"), "rwx");
    allow(application(), "r-x");
    becomeSomebodyElse();
    EXPECT_EQ(WorkFolder(application(), "data"), path("data"));
    EXPECT_EQ(WorkFolder(application(), "tempdata"), ofTheUser("tempdata"));
}

TEST_F(WorkFoldersTest, LieBelowTheUsersFolderWhereTheirOwnIsReadOnly)
{
    ASSERT_TRUE(MakeFolder(path("data")));
    allow(path("data"), "r-x");
    allow(application(), "rwx");
    becomeSomebodyElse();
    EXPECT_EQ(WorkFolder(application(), "data"), ofTheUser("data"));
}

TEST_F(WorkFoldersTest, LieBelowTheUsersFolderWhereTheApplicationHasNone)
{
    makeFile("file");
    EXPECT_EQ(WorkFolder(path("file/below"), "data"), ofTheUser("data"));
}

TEST_F(WorkFoldersTest, AreMadeWithWhatIsMissingAboveThem)
{
    EXPECT_TRUE(MakeFolder(path("one/two/data")));
    EXPECT_TRUE(FolderExists(path("one/two/data")));
}

TEST_F(WorkFoldersTest, CannotBeMadeBelowAFile)
{
    makeFile("file");
    EXPECT_FALSE(MakeFolder(path("file/data")));
}

TEST_F(WorkFoldersTest, AreNotThereWhereAFileHasTheirName)
{
    makeFile("data");
    EXPECT_FALSE(FolderExists(path("data")));
    EXPECT_FALSE(MakeFolder(path("data")));
}

} // namespace
