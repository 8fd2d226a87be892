// Unusual things in the place of the settings file and of its lock, and how the program handles them.

#include "tests/platform/StoreFixture.h"
#include "tests/support/FullDisk.h"

#include <QFileInfo>
#include <QLockFile>
#include <QSysInfo>

#include <filesystem>

#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

class PlaceOfTheStore : public Store
{
protected:
    /// Expects the program to use defaults and change nothing.
    void expectLeftAlone(const char* what)
    {
        EXPECT_EQ(UnreadableStore("Dunmoor"), file().toStdString()) << what;
        EXPECT_EQ(saved("Metric_Units"), "(nothing)") << what;
        save("Metric_Units", "True");
        EXPECT_EQ(saved("Metric_Units"), "(nothing)") << what;
    }
};

constexpr qsizetype oneMegabyte = 1'000'000;

QByteArray storeOf(qsizetype size)
{
    const QByteArray start = "[Settings]\nPressure_psi=12\n;";
    return start + QByteArray(size - start.size(), ' ');
}

TEST_F(PlaceOfTheStore, ReadsNothingFromAFileThatIsNone)
{
    const QByteArray rubbish("\x00\xFF\xFE rubbish [[[ = = \n\n ]", 22);
    write(file(), rubbish);
    expectLeftAlone("rubbish");
    EXPECT_EQ(bytes(file()), rubbish.toStdString());
}

TEST_F(PlaceOfTheStore, LeavesABinaryFileWithoutZeroBytesAlone)
{
    const QByteArray image("\x89PNG\r\n\x1a\n\x01\x02");
    write(file(), image);
    expectLeftAlone("an image");
    EXPECT_EQ(bytes(file()), image.toStdString());
}

TEST_F(PlaceOfTheStore, IsNoPipe)
{
    ASSERT_EQ(mkfifo(file().toLocal8Bit(), 0600), 0);
    expectLeftAlone("a pipe");
    EXPECT_EQ(std::filesystem::status(file().toStdString()).type(), std::filesystem::file_type::fifo);
}

TEST_F(PlaceOfTheStore, IsNoPipeBehindALink)
{
    const QString pipe = place.path() + "/pipe";
    ASSERT_EQ(mkfifo(pipe.toLocal8Bit(), 0600), 0);
    ASSERT_TRUE(QFile::link(pipe, file()));
    expectLeftAlone("a link to a pipe");
    EXPECT_EQ(QFile::symLinkTarget(file()), pipe);
    EXPECT_EQ(std::filesystem::status(pipe.toStdString()).type(), std::filesystem::file_type::fifo);
}

TEST_F(PlaceOfTheStore, IsNoLoopOfLinks)
{
    ASSERT_TRUE(QFile::link(file() + "2", file()));
    ASSERT_TRUE(QFile::link(file(), file() + "2"));
    expectLeftAlone("a loop");
    EXPECT_TRUE(QFileInfo(file()).isSymLink());
}

TEST_F(PlaceOfTheStore, IsNoFileThatTheUserMayNotRead)
{
    write(file(), storeOf(100));
    ASSERT_EQ(chmod(file().toLocal8Bit(), 0), 0);
    if (geteuid() == 0) { // root can read everything, so continue as another user
        chmod(place.path().toLocal8Bit(), 0777);
        chmod(folder().toLocal8Bit(), 0777);
        ASSERT_EQ(setresuid(65534, 65534, 65534), 0);
    }
    expectLeftAlone("unreadable");
    EXPECT_EQ(QFileInfo(file()).size(), 100);
}

TEST_F(PlaceOfTheStore, HoldsOneMegabyteAndNoMore)
{
    write(file(), storeOf(oneMegabyte));
    EXPECT_EQ(UnreadableStore("Dunmoor"), "");
    EXPECT_EQ(saved("Pressure_psi"), "12");
    write(file(), storeOf(oneMegabyte + 1));
    expectLeftAlone("larger");
    EXPECT_EQ(bytes(file()), storeOf(oneMegabyte + 1).toStdString());
}

TEST_F(PlaceOfTheStore, IsLeftAloneForTheWholeRunEvenIfItBecomesReadable)
{
    ASSERT_EQ(mkfifo(file().toLocal8Bit(), 0600), 0);
    expectLeftAlone("a pipe");
    QFile::remove(file());
    write(file(), storeOf(100));
    expectLeftAlone("mended");
    EXPECT_EQ(bytes(file()), storeOf(100).toStdString());
}

TEST_F(PlaceOfTheStore, CanBeALinkToAFileElsewhere)
{
    const QString target = place.path() + "/dotfiles.ini";
    write(target, storeOf(100));
    ASSERT_TRUE(QFile::link(target, file()));
    EXPECT_EQ(saved("Pressure_psi"), "12");
    save("Pressure_psi", "13");
    EXPECT_EQ(saved("Pressure_psi"), "13");
    EXPECT_TRUE(QFileInfo(file()).isSymLink());
    EXPECT_NE(bytes(target).find("Pressure_psi=13"), std::string::npos);
}

TEST_F(PlaceOfTheStore, CanBeALinkToAFileThatIsNotThereYet)
{
    const QString target = place.path() + "/dotfiles.ini";
    ASSERT_TRUE(QFile::link(target, file()));
    EXPECT_EQ(UnreadableStore("Dunmoor"), "");
    save("Metric_Units", "True");
    EXPECT_EQ(saved("Metric_Units"), "True");
}

TEST_F(PlaceOfTheStore, IsNotWaitedForWhereSomethingElseIsItsLock)
{
    write(file(), storeOf(100));
    const QString lock = file() + ".lock";
    const std::string before = bytes(file());
    for (const QString& name : {lock, lock + ".rmlock"}) {
        QDir().mkdir(name);
        save("Metric_Units", "True");
        QDir().rmdir(name);
        ASSERT_EQ(mkfifo(name.toLocal8Bit(), 0600), 0);
        save("Metric_Units", "True");
        QFile::remove(name);
    }
    EXPECT_EQ(bytes(file()), before);
    ASSERT_TRUE(QFile::link(place.path() + "/none", lock));
    save("Metric_Units", "True");
    EXPECT_EQ(bytes(file()), before);
    QFile::remove(lock);
    save("Metric_Units", "True");
    EXPECT_EQ(saved("Metric_Units"), "True");
}

TEST_F(PlaceOfTheStore, IsNotWrittenWhileAnotherProgramHoldsItsLock)
{
    QLockFile lock(file() + ".lock");
    ASSERT_TRUE(lock.lock());
    save("Metric_Units", "True");
    EXPECT_EQ(saved("Metric_Units"), "(nothing)");
    lock.unlock();
    save("Metric_Units", "True");
    EXPECT_EQ(saved("Metric_Units"), "True");
}

TEST_F(PlaceOfTheStore, TakesOverTheLockOfAProgramThatEndedAmidAWrite)
{
    const pid_t gone = fork();
    if (gone == 0)
        _exit(0);
    waitpid(gone, nullptr, 0);
    write(file() + ".lock",
          QByteArray::number(gone) + "\nDunmoor\n" + QSysInfo::machineHostName().toUtf8() + '\n');
    save("Metric_Units", "True");
    EXPECT_EQ(saved("Metric_Units"), "True");
}

TEST_F(PlaceOfTheStore, KeepsItsTextOnAFullDisk)
{
    save("Pressure_psi", "12");
    const std::string before = bytes(file());
    {
        const FullDisk disk;
        save("Pressure_psi", "13");
    }
    EXPECT_EQ(bytes(file()), before);
    EXPECT_EQ(QDir(folder()).entryList(QDir::Files | QDir::Hidden), QStringList{"Dunmoor.ini"});
}

TEST_F(PlaceOfTheStore, IsHarmlessWhereItCannotBeWritten)
{
    write(place.path() + "/occupied", "a file where the folder should be");
    qputenv("XDG_CONFIG_HOME", (place.path() + "/occupied").toUtf8());
    save("Metric_Units", "True");
    EXPECT_EQ(saved("Metric_Units"), "(nothing)");
    EXPECT_EQ(bytes(place.path() + "/occupied"), "a file where the folder should be");
}

TEST_F(PlaceOfTheStore, IsNoFolder)
{
    QDir().mkpath(file());
    expectLeftAlone("a folder");
    EXPECT_TRUE(QFileInfo(file()).isDir());
}

} // namespace
