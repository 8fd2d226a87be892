// The parts of a help file: title, topics, contents, index, pages.

#include "platform/help/HelpBook.h"
#include "platform/help/HelpSearch.h"
#include "tests/support/Bytes.h"

#include <gtest/gtest.h>

using namespace help;

namespace {

class HelpBookTest : public testing::Test
{
protected:
    const std::shared_ptr<const HelpBook> book = HelpBook::open(BytesOf(DUNMOOR_SAMPLE_HELP));
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
    EXPECT_EQ(book->index().size(), 5);
}

TEST_F(HelpBookTest, ListsItsPages)
{
    EXPECT_EQ(book->pages(), (QStringList{"index.html", "air.html", "mixed air.html", "more/units.html"}))
        << "in the order of the project";
}

TEST_F(HelpBookTest, TakesUpperAndLowerCaseAsOne)
{
    EXPECT_EQ(book->file("Images/CHART.png"), book->file("images/chart.png"));
    EXPECT_EQ(book->page("INDEX.HTML"), book->page("index.html"));
}

TEST_F(HelpBookTest, HasNothingOfAnotherName)
{
    for (const char* name : {"", "/", "missing.html", "/index.html", "../index.html", "/etc/hostname"})
        EXPECT_TRUE(book->file(name).isEmpty()) << name;
}

/// A record of the table "#SYSTEM".
QByteArray record(char code, const QByteArray& text)
{
    return QByteArray(1, code) + '\0' + static_cast<char>(text.size()) + '\0' + text;
}

TEST(HelpBook, OpensWithWhatIsLeftOfItsTables)
{
    const QByteArray system =
        QByteArray(4, '\3') + record(2, "b.html") + record(99, "else") + record(3, "A title");
    const QByteArray strings("\0a.html\0b.html", 14);
    const QByteArray topics = QByteArray("\x10\0\0\0", 4) + QByteArray("\x64\0\0\0\1\0\0\0", 8) +
                              QByteArray("\x65\0\0\0\x0e\0\0\0", 8) + QByteArray("\x66\0\0\0\x08\0\0\0", 8) +
                              QByteArray("\x67\0\0\0\x08\0\0", 7);
    const QList<ChmMember> pages{{"a.html", "<p>a"}, {"b.html", "<p>b"}};
    const HelpBook whole(pages +
                         QList<ChmMember>{{"#SYSTEM", system}, {"#STRINGS", strings}, {"#IVB", topics}});
    EXPECT_EQ(whole.title(), "A title");
    EXPECT_EQ(whole.homePage(), "b.html");
    EXPECT_EQ(whole.pageOfTopic(100), "a.html");
    EXPECT_EQ(whole.pageOfTopic(101), "") << "its name lies outside";
    EXPECT_EQ(whole.pageOfTopic(102), "b.html");
    EXPECT_EQ(whole.pageOfTopic(103), "") << "it is cut off";
    for (qsizetype length = 0; length < system.size(); ++length)
        EXPECT_EQ(HelpBook(pages + QList<ChmMember>{{"#SYSTEM", system.first(length)}}).title(), "");
    EXPECT_EQ(HelpBook(pages).homePage(), "a.html") << "its first";
}

TEST(HelpBook, ReadsPagesInBothEncodings)
{
    EXPECT_EQ(HelpBook(QList<ChmMember>{{"a.html", "70 \xc2\xb0"}}).page("a.html"),
              QString::fromUtf8("70 ° "));
    const QByteArray western = "<meta http-equiv=\"Content-Type\" content=\"text/html; charset=iso-8859-1\">";
    const HelpBook book(QList<ChmMember>{{"a.html", western + "70 \xb0"}});
    EXPECT_TRUE(book.page("a.html").endsWith(QString::fromUtf8("70 ° ")));
}

TEST(HelpSearchWords, AreLettersAndNumbersInLowerCase)
{
    EXPECT_EQ(SearchWords(" Dew-Point, 7.57 dew "), (QStringList{"dew", "point", "7", "57"}));
    EXPECT_EQ(SearchWords(" ?! "), QStringList());
}

TEST(Sitemap, ReadsLinesOfEveryDepth)
{
    const auto entries =
        ReadSitemap("<UL><LI><OBJECT type=\"text/sitemap\"><param name=\"Name\" value=\"A &amp; B\"></OBJECT>"
                    "<ul><li><object><param name=\"Name\" value=\"C\"><param name=\"Local\" value=\"c.html\">"
                    "</object></ul></ul></ul></ul><object><param name=\"Local\" value=\"untitled.html\">"
                    "</object><object><param name=\"name\" value=\"D\"></object>");
    ASSERT_EQ(entries.size(), 3);
    EXPECT_EQ(entries[0].title, "A & B");
    EXPECT_EQ(entries[0].level, 0);
    EXPECT_EQ(entries[0].page, "");
    EXPECT_EQ(entries[1].level, 1);
    EXPECT_EQ(entries[1].page, "c.html");
    EXPECT_EQ(entries[2].level, 0);
    EXPECT_EQ(entries[2].page, "");
}

TEST(Sitemap, StaysWithinBounds)
{
    const QString line = "<ul><object><param name=\"Name\" value=\"x\"></object>";
    const auto entries = ReadSitemap(line.repeated(20'000));
    EXPECT_EQ(entries.size(), 10'000);
    EXPECT_EQ(entries.last().level, 31);
}

} // namespace
