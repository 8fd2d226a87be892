// What the program learns from the desktop: its own folder, and the user's number format.

#include "platform/Desktop.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QLocale>
#include <QProcess>
#include <QTemporaryDir>

#include <filesystem>
#include <iostream>

namespace {

/// Runs a test in a separate process and returns its line after "said: ".
std::string said(const QString& executable, const QString& test, const QProcessEnvironment& environment)
{
    QProcess child;
    child.setProcessEnvironment(environment);
    child.start(executable, {"--gtest_filter=" + test});
    if (!child.waitForFinished(30'000))
        return "(the process did not end)";
    for (const QString& line : QString::fromUtf8(child.readAllStandardOutput()).split('\n')) {
        if (line.startsWith("said: "))
            return line.mid(6).toStdString();
    }
    return "(nothing)";
}

std::string numberCharactersUnder(const QString& locale)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const char* variable : {"LANG", "LC_NUMERIC", "LANGUAGE"})
        environment.remove(variable);
    environment.insert("LC_ALL", locale);
    return said(QCoreApplication::applicationFilePath(), "Child.SaysItsNumberCharacters", environment);
}

} // namespace

// The other tests run these two in separate processes.
TEST(Child, SaysItsNumberCharacters)
{
    const NumberCharacters characters = UserNumberCharacters();
    EXPECT_FALSE(characters.decimalPoint.empty());
    std::cout << "said: [" << characters.decimalPoint << "][" << characters.groupSeparator << "]\n";
}

TEST(Child, SaysItsApplicationFolder)
{
    EXPECT_FALSE(ApplicationFolder().empty());
    std::cout << "said: " << ApplicationFolder() << '\n';
}

TEST(Desktop, WritesNumbersWithAPointInThePlainLocale)
{
    EXPECT_EQ(numberCharactersUnder("C.UTF-8"), "[.][,]");
    EXPECT_EQ(numberCharactersUnder("C"), "[.][,]");
}

TEST(Desktop, WritesNumbersAsTheUsersLocaleDoes)
{
    EXPECT_EQ(numberCharactersUnder("en_US.UTF-8"), "[.][,]");
    EXPECT_EQ(numberCharactersUnder("de_DE.UTF-8"), "[,][.]");
    EXPECT_EQ(numberCharactersUnder("fr_FR.UTF-8"), "[,][\u202F]");
    // The kind of apostrophe depends on the version of the toolkit.
    EXPECT_EQ(numberCharactersUnder("de_CH.UTF-8"),
              "[.][" + QLocale("de_CH").groupSeparator().toStdString() + "]");
}

TEST(Desktop, KnowsTheFolderOfTheExecutable)
{
    const std::filesystem::path executable = std::filesystem::read_symlink("/proc/self/exe");
    EXPECT_EQ(ApplicationFolder(), executable.parent_path().string());
}

TEST(Desktop, KnowsTheFolderOfAnExecutableThatIsStartedByALink)
{
    const QTemporaryDir place;
    const QString link = place.path() + "/started-here";
    ASSERT_TRUE(QFile::link(QCoreApplication::applicationFilePath(), link));
    EXPECT_EQ(said(link, "Child.SaysItsApplicationFolder", QProcessEnvironment::systemEnvironment()),
              ApplicationFolder());
}

TEST(Desktop, KnowsTheFolderOfAnExecutableInALinkedFolder)
{
    const QTemporaryDir place;
    const QString link = place.path() + "/linked";
    ASSERT_TRUE(QFile::link(QCoreApplication::applicationDirPath(), link));
    EXPECT_EQ(said(link + "/test_platform", "Child.SaysItsApplicationFolder",
                   QProcessEnvironment::systemEnvironment()),
              ApplicationFolder());
}

TEST(Desktop, MakesAFolderTheCurrentDirectory)
{
    const QTemporaryDir place;
    const QString before = QDir::currentPath();
    MakeCurrentDirectory(place.path().toStdString());
    EXPECT_EQ(QDir::current().canonicalPath(), QDir(place.path()).canonicalPath());
    MakeCurrentDirectory((place.path() + "/missing").toStdString());
    EXPECT_EQ(QDir::current().canonicalPath(), QDir(place.path()).canonicalPath())
        << "a missing folder changes nothing";
    QDir::setCurrent(before);
}
