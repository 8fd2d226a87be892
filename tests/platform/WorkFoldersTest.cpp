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

    static void allow(const std::string& theFolder, mode_t rights)
    {
        ASSERT_EQ(chmod(theFolder.c_str(), rights), 0);
    }

    static constexpr uid_t somebody = 65534;

    /// A folder of another user: for root somebody's, for anybody else root's.
    QString folderOfAnother() const
    {
        if (geteuid() != 0)
            return "/";
        EXPECT_TRUE(MakeFolder(path("theirs")));
        EXPECT_EQ(chown(path("theirs").c_str(), somebody, somebody), 0);
        return folder.filePath("theirs");
    }

    /// Root may write everywhere, so the rest of the test's process runs as another user.
    static void giveToSomebodyElseAndBecomeThem(const std::vector<std::string>& theirs)
    {
        if (geteuid() != 0)
            return;
        for (const std::string& path : theirs)
            ASSERT_EQ(chown(path.c_str(), somebody, somebody), 0);
        ASSERT_EQ(setresuid(somebody, somebody, somebody), 0);
    }

    QTemporaryDir folder;
};

TEST_F(WorkFoldersTest, LieBelowTheApplication)
{
    EXPECT_EQ(WorkFolder(application(), "data"), path("data"));
    EXPECT_FALSE(FolderExists(path("data"))); // the query creates nothing
}

TEST_F(WorkFoldersTest, LieBelowTheUsersFolderWhereTheApplicationsIsReadOnly)
{
    giveToSomebodyElseAndBecomeThem({application()});
    allow(application(), 0555);
    EXPECT_EQ(WorkFolder(application(), "data"), ofTheUser("data"));
}

TEST_F(WorkFoldersTest, StayWhereTheyAreMadeAndWritable)
{
    ASSERT_TRUE(MakeFolder(path("data")));
    giveToSomebodyElseAndBecomeThem({application(), path("data")});
    allow(application(), 0555);
    EXPECT_EQ(WorkFolder(application(), "data"), path("data"));
    EXPECT_EQ(WorkFolder(application(), "tempdata"), ofTheUser("tempdata"));
}

TEST_F(WorkFoldersTest, LieBelowTheUsersFolderWhereOthersMayWriteInTheApplications)
{
    for (const mode_t rights : {0770U, 0707U, 01777U}) {
        allow(application(), rights);
        EXPECT_EQ(WorkFolder(application(), "tempdata"), ofTheUser("tempdata")) << std::oct << rights;
    }
    allow(application(), 0755);
    EXPECT_EQ(WorkFolder(application(), "tempdata"), path("tempdata"));
}

TEST_F(WorkFoldersTest, LieBelowTheUsersFolderWhereOthersMayWriteInTheirOwn)
{
    ASSERT_TRUE(MakeFolder(path("tempdata")));
    for (const mode_t rights : {0770U, 0707U, 01777U}) {
        allow(path("tempdata"), rights);
        EXPECT_EQ(WorkFolder(application(), "tempdata"), ofTheUser("tempdata")) << std::oct << rights;
    }
}

TEST_F(WorkFoldersTest, LieBelowTheUsersFolderWhereTheApplicationsBelongsToAnotherUser)
{
    EXPECT_EQ(WorkFolder(folderOfAnother().toStdString(), "tempdata"), ofTheUser("tempdata"));
}

TEST_F(WorkFoldersTest, LieBelowTheUsersFolderWhereTheirOwnLeadsToAnotherUsers)
{
    ASSERT_TRUE(QFile::link(folderOfAnother(), folder.filePath("tempdata")));
    EXPECT_EQ(WorkFolder(application(), "tempdata"), ofTheUser("tempdata"));
}

TEST_F(WorkFoldersTest, AreMadeSoThatTheyStayTheUsersAloneUnderAnyMask)
{
    umask(0);
    ASSERT_TRUE(MakeFolder(path("tempdata")));
    EXPECT_EQ(WorkFolder(application(), "tempdata"), path("tempdata"));
}

TEST_F(WorkFoldersTest, LieBelowTheUsersFolderWhereTheirOwnIsReadOnly)
{
    ASSERT_TRUE(MakeFolder(path("data")));
    giveToSomebodyElseAndBecomeThem({application(), path("data")});
    allow(path("data"), 0555);
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
