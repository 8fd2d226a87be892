// The help's sources are consistent: links, pictures, contents, index and project.

#include "tests/help/HelpPage.h"

#include <QFile>
#include <QRegularExpression>
#include <QSet>

#include <gtest/gtest.h>

namespace {

QStringList anchorsOf(const HelpElement& page)
{
    QStringList anchors;
    for (const HelpElement* anchor : page.all("a")) {
        if (anchor->attributes.contains("name"))
            anchors << anchor->attributes["name"];
    }
    return anchors;
}

/// Whether "page.html", "page.html#anchor" or, within a page, "#anchor" has a target.
bool leadsSomewhere(const QString& target, const QString& fromPage = {})
{
    const QString page = target.startsWith('#') ? fromPage : target.section('#', 0, 0);
    if (!helpPages().contains(page))
        return false;
    return !target.contains('#') || anchorsOf(readHelpPage(page)).contains(target.section('#', 1));
}

/// The entries of the contents or the index: name and target.
std::vector<std::pair<QString, QString>> entries(const QString& file)
{
    static const QRegularExpression entry(
        "<param name=\"Name\" value=\"([^\"]+)\">(?:<param name=\"Local\" value=\"([^\"]*)\">)?</OBJECT>");
    std::vector<std::pair<QString, QString>> found;
    for (auto match = entry.globalMatch(helpSource(file)); match.hasNext();) {
        const QRegularExpressionMatch one = match.next();
        found.emplace_back(one.captured(1), one.captured(2));
    }
    return found;
}

/// The lines of a section of the project.
QStringList section(const QString& name)
{
    const QString from = helpSource("dunmoor.hhp").section('[' + name + "]\n", 1);
    return from.section("\n[", 0, 0).split('\n', Qt::SkipEmptyParts);
}

} // namespace

TEST(HelpLinks, OfThePagesLeadSomewhere)
{
    for (const QString& name : helpPages()) {
        const HelpElement page = readHelpPage(name);
        for (const HelpElement* link : page.all("a")) {
            const QString target = link->attributes.value("href");
            EXPECT_TRUE(target.isEmpty() || leadsSomewhere(target, name))
                << name.toStdString() << ':' << link->line << ": " << target.toStdString();
        }
        const QStringList anchors = anchorsOf(page);
        EXPECT_EQ(QSet<QString>(anchors.begin(), anchors.end()).size(), anchors.size()) << name.toStdString();
    }
}

TEST(HelpLinks, PicturesAreThoseOfTheDocuments)
{
    const QStringList files = section("FILES");
    int pictures = 0;
    for (const QString& name : helpPages()) {
        const HelpElement page = readHelpPage(name);
        for (const HelpElement* picture : page.all("img")) {
            const QString target = picture->attributes.value("src");
            EXPECT_TRUE(files.contains(target)) << target.toStdString();
            EXPECT_TRUE(QFile::exists(DUNMOOR_SOURCES "/docs/" + target)) << target.toStdString();
            EXPECT_FALSE(picture->attributes.value("alt").isEmpty()) << target.toStdString();
            ++pictures;
        }
    }
    EXPECT_GE(pictures, 6);
}

TEST(HelpLinks, ContentsLeadToEveryPageAndNowhereElse)
{
    QSet<QString> reached;
    for (const auto& [title, target] : entries("dunmoor.hhc")) {
        if (target.isEmpty())
            continue; // a heading only
        EXPECT_TRUE(leadsSomewhere(target)) << title.toStdString() << ": " << target.toStdString();
        reached.insert(target.section('#', 0, 0));
    }
    const QStringList pages = helpPages();
    EXPECT_EQ(reached, QSet<QString>(pages.begin(), pages.end()));
}

TEST(HelpLinks, IndexLeadsSomewhereInTheOrderOfItsWords)
{
    const auto index = entries("dunmoor.hhk");
    EXPECT_GE(index.size(), 50U);
    QString before;
    for (const auto& [word, target] : index) {
        EXPECT_TRUE(leadsSomewhere(target)) << word.toStdString() << ": " << target.toStdString();
        EXPECT_LE(before.toStdString(), word.toLower().toStdString());
        before = word.toLower();
    }
}

TEST(HelpLinks, ProjectHoldsEveryFile)
{
    const QStringList files = section("FILES");
    for (const QString& page : helpPages())
        EXPECT_TRUE(files.contains(page)) << page.toStdString();
    for (const QString& file : files) {
        const bool isPicture = file.startsWith("pictures/"); // shared with the documents, see above
        EXPECT_TRUE(isPicture || QFile::exists(helpFolder() + '/' + file)) << file.toStdString();
    }
}
