// The compiled help file, looked into with chmls, a reader that is none of ours (Debian's fp-utils).

#include "tests/help/HelpPage.h"

#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QtEndian>

#include <gtest/gtest.h>

/// A copy of the compiled file to look into. chmls locks what it reads, so tests that run at the same time
/// each need their own.
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

    /// A file out of the compiled one.
    QByteArray member(const QString& name) const
    {
        QFile extracted(folder.filePath("member"));
        extracted.remove();
        runChmls({"extract", file, name, extracted.fileName()});
        EXPECT_TRUE(extracted.open(QIODevice::ReadOnly)) << name.toStdString();
        return extracted.readAll();
    }

    const QTemporaryDir folder;
    const QString file = folder.filePath("dunmoor.chm");
};

namespace {

/// Four bytes, the lowest first.
quint32 number(const QByteArray& bytes, qsizetype at)
{
    return qFromLittleEndian<quint32>(bytes.mid(at, 4).leftJustified(4, '\0').constData());
}

} // namespace

TEST_F(CompiledHelp, MapsTheSixNumberedTopics)
{
    const QByteArray map = member("/#IVB");
    const QByteArray strings = member("/#STRINGS");
    QMap<quint32, QString> topics;
    for (qsizetype at = 4; at + 8 <= map.size(); at += 8) {
        const auto name = static_cast<qsizetype>(number(map, at + 4));
        topics[number(map, at)] = QString::fromLatin1(strings.mid(name, strings.indexOf('\0', name) - name));
    }
    const QMap<quint32, QString> wanted{{100, "index.html"},     {105, "air-properties.html"},
                                        {110, "mixed-air.html"}, {120, "cooling.html"},
                                        {130, "heating.html"},   {140, "humidification.html"}};
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
    for (const QString& name : helpPages()) {
        QFile page(helpFolder() + '/' + name);
        ASSERT_TRUE(page.open(QIODevice::ReadOnly));
        EXPECT_EQ(member('/' + name), page.readAll()) << name.toStdString();
    }
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

// The folder that the file was built in is nobody's business, and in the map of topics it would lead nowhere.
TEST_F(CompiledHelp, NamesNoFolderOfTheBuild)
{
    EXPECT_FALSE(member("/#STRINGS").contains("/proc"));
    EXPECT_FALSE(member("/#STRINGS").contains(DUNMOOR_SOURCES));
}
