// Inspects the compiled help file with chmls, an independent reader (Debian's fp-utils).

#include "tests/help/HelpPage.h"
#include "tests/support/Bytes.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QtEndian>

#include <gtest/gtest.h>

/// A private copy of the compiled file. chmls locks the file that it reads, so tests that run at the same
/// time need separate copies.
class CompiledHelp : public testing::Test
{
protected:
    void SetUp() override { ASSERT_TRUE(QFile::copy(DUNMOOR_HELP_FILE, file)); }

    static QString runChmls(const QStringList& arguments)
    {
        QProcess chmls;
        chmls.start(DUNMOOR_CHMLS, arguments);
        EXPECT_TRUE(chmls.waitForFinished());
        EXPECT_EQ(chmls.exitCode(), 0) << chmls.readAllStandardError().toStdString();
        return QString::fromLatin1(chmls.readAllStandardOutput());
    }

    /// A member of the compiled file.
    QByteArray member(const QString& name) const
    {
        const QString extracted = folder.filePath("member");
        QFile::remove(extracted);
        runChmls({"extract", file, name, extracted});
        return BytesOf(extracted);
    }

    const QTemporaryDir folder;
    const QString file = folder.filePath("dunmoor.chm");
};

namespace {

/// Four bytes, little-endian.
quint32 number(const QByteArray& bytes, qsizetype at)
{
    return qFromLittleEndian<quint32>(bytes.mid(at, 4).leftJustified(4, '\0').constData());
}

} // namespace

TEST_F(CompiledHelp, MapsTheNumberedTopics)
{
    const QByteArray map = member("/#IVB");
    const QByteArray strings = member("/#STRINGS");
    QMap<quint32, QString> topics;
    for (qsizetype at = 4; at + 8 <= map.size(); at += 8) {
        const auto name = static_cast<qsizetype>(number(map, at + 4));
        topics[number(map, at)] = QString::fromLatin1(strings.mid(name, strings.indexOf('\0', name) - name));
    }
    const QMap<quint32, QString> wanted{
        {100, "index.html"},   {105, "air-properties.html"}, {110, "mixed-air.html"}, {120, "cooling.html"},
        {130, "heating.html"}, {140, "humidification.html"}, {150, "chart.html"}};
    EXPECT_EQ(topics.keys(), wanted.keys());
    for (const quint32 topic : wanted.keys())
        EXPECT_EQ(topics[topic].toStdString(), wanted[topic].toStdString()) << topic;
}

TEST_F(CompiledHelp, NamesItsTitleDefaultTopicContentsAndIndex)
{
    const QString system = runChmls({"printsystem", file});
    for (const char* line : {"[options]  :index.html", "[options]          :Dunmoor", ":dunmoor.hhc",
                             ":dunmoor.hhk", "fullttext search is on     : 1"})
        EXPECT_TRUE(system.contains(line)) << line << "\n" << system.toStdString();
}

TEST_F(CompiledHelp, HoldsEveryPageAsItIs)
{
    for (const QString& name : helpPages())
        EXPECT_EQ(member('/' + name), BytesOf(helpFolder() + '/' + name)) << name.toStdString();
}

TEST_F(CompiledHelp, HoldsPicturesContentsIndexAndSearch)
{
    const QStringList names = runChmls({"-n", "list", file}).split('\n');
    for (const QString& name : helpPages()) {
        const HelpElement page = readHelpPage(name);
        for (const HelpElement* picture : page.all("img"))
            EXPECT_TRUE(names.contains('/' + picture->attributes["src"]));
    }
    for (const char* name : {"/dunmoor.hhc", "/dunmoor.hhk", "/dunmoor.css", "/$FIftiMain"})
        EXPECT_TRUE(names.contains(name)) << name;
}

// The builder's path is useless to others, and in the topic map it would break the topics.
TEST_F(CompiledHelp, NamesNoFolderOfTheBuild)
{
    const QString members = folder.filePath("members");
    ASSERT_TRUE(QDir().mkpath(members));
    runChmls({"extractall", file, members});
    int read = 0;
    QDirIterator paths(members, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    while (paths.hasNext()) {
        const QByteArray bytes = BytesOf(paths.next());
        for (const char* path : {"/proc/", DUNMOOR_SOURCES, DUNMOOR_BUILD})
            EXPECT_FALSE(bytes.contains(path)) << path << " in " << paths.fileName().toStdString();
        ++read;
    }
    EXPECT_GT(read, helpPages().size());
    EXPECT_FALSE(BytesOf(file).contains(DUNMOOR_BUILD)) << "nor outside its members";
}

TEST_F(CompiledHelp, IsTheSameWhereverAndWheneverItIsBuilt)
{
    EXPECT_TRUE(BytesOf(file) == BytesOf(DUNMOOR_HELP_FILE_AGAIN));
}

TEST_F(CompiledHelp, HasBothIdentifiersInItsHeader)
{
    const QByteArray header = BytesOf(file).first(0x38);
    EXPECT_EQ(header.mid(0x18, 16).toHex(), "10fd017caa7bd0119e0c00a0c922e6ec");
    EXPECT_EQ(header.mid(0x28, 16).toHex(), "11fd017caa7bd0119e0c00a0c922e6ec");
}
