// A help file as a book: title, topics, contents, index; and its tables by themselves.

#include "tests/platform/help/DamagedHelp.h"

#include <gtest/gtest.h>

#include <random>

namespace {

class HelpBookTest : public testing::Test
{
protected:
    const std::shared_ptr<const HelpBook> book = HelpBook::open(bytesOf(DUNMOOR_SAMPLE_HELP));
};

TEST_F(HelpBookTest, KnowsItsTitleAndFirstPage)
{
    EXPECT_EQ(book->title(), "Sample");
    EXPECT_EQ(book->homePage(), "index.html");
}

TEST_F(HelpBookTest, KnowsThePageOfEachTopic)
{
    EXPECT_EQ(book->pageOfTopic(100), "index.html");
    EXPECT_EQ(book->pageOfTopic(105), "air.html");
    EXPECT_EQ(book->pageOfTopic(110), "mixed air.html");
    EXPECT_EQ(book->pageOfTopic(4000), "more/units.html");
    for (const int unknown : {0, -1, 99, 101, 4001})
        EXPECT_EQ(book->pageOfTopic(unknown), "") << unknown;
}

TEST_F(HelpBookTest, ReadsContentsAndIndex)
{
    EXPECT_EQ(book->contents().size(), 6);
    EXPECT_EQ(book->contents()[3].title, "The range");
    EXPECT_EQ(book->contents()[3].level, 2);
    EXPECT_EQ(book->index().size(), 4);
}

TEST_F(HelpBookTest, ListsItsPages)
{
    QStringList pages = book->pages();
    pages.sort();
    EXPECT_EQ(pages, (QStringList{"air.html", "index.html", "mixed air.html", "more/units.html"}));
}

/// A record of the table "#SYSTEM".
QByteArray record(int code, const QByteArray& text)
{
    const auto size = static_cast<char>(text.size());
    return QByteArray(1, static_cast<char>(code)) + '\0' + size + '\0' + text;
}

TEST(HelpTables, ReadTheRecordsOfTheFileAboutItself)
{
    const QByteArray version(4, '\3');
    const SystemTable table =
        ReadSystemTable(version + record(0, "toc.hhc") + record(99, "else") + record(3, "A title"));
    EXPECT_EQ(table.contents, "toc.hhc");
    EXPECT_EQ(table.title, "A title");
    EXPECT_EQ(table.index, "");
    EXPECT_EQ(table.homePage, "");
}

TEST(HelpTables, LeaveOutWhatIsCutOff)
{
    const QByteArray whole = QByteArray(4, '\3') + record(3, "A title");
    for (qsizetype length = 0; length < whole.size(); ++length)
        EXPECT_EQ(ReadSystemTable(whole.first(length)).title, "") << length;
    EXPECT_EQ(ReadSystemTable(whole).title, "A title");
}

TEST(HelpTables, LeaveOutTopicsWhoseNameLiesOutside)
{
    const QByteArray strings("\0a.html\0b.html", 14);
    const QByteArray numbers = QByteArray("\x10\0\0\0", 4) + QByteArray("\x64\0\0\0\1\0\0\0", 8) +
                               QByteArray("\x65\0\0\0\x0e\0\0\0", 8) + QByteArray("\x66\0\0\0\x08\0\0\0", 8) +
                               QByteArray("\x67\0\0\0\x08\0\0", 7);
    const QHash<int, QString> map = ReadTopicMap(numbers, strings);
    EXPECT_EQ(map, (QHash<int, QString>{{100, "a.html"}, {102, "b.html"}}));
}

TEST(HelpTables, TakeAnyBytes)
{
    std::mt19937 random(7);
    for (int time = 0; time < 5000; ++time) {
        QByteArray bytes(static_cast<qsizetype>(random() % 200), '\0');
        for (char& byte : bytes)
            byte = static_cast<char>(random() % 4 == 0 ? random() : 0);
        ReadSystemTable(bytes);
        ReadTopicMap(bytes, bytes);
    }
}

} // namespace
