// The pages of a help file: cut into pieces, read for their words, made fit to be shown.

#include "platform/help/HelpMarkup.h"
#include "platform/help/HelpSearch.h"
#include "platform/help/HtmlEntities.h"
#include "platform/help/HtmlScanner.h"
#include "platform/help/PageText.h"
#include "tests/platform/help/DamagedHelp.h"

#include <gtest/gtest.h>

#include <QTextDocument>

#include <random>

namespace {

std::string shown(const char* page) { return PageToShow(page).toStdString(); }
std::string style(const char* sheet) { return StyleToShow(sheet).simplified().toStdString(); }

TEST(HtmlScanner, LosesNothingOfAPage)
{
    const QString page =
        "<!DOCTYPE x><p class='a>b' id=c>1 < 2 <b>&amp;</b><!-- > --><script>if (a<b) x;</script "
        "><br/>end <unclosed a=\"b";
    QString pieces;
    HtmlScanner scanner(page);
    HtmlPiece piece;
    while (scanner.next(piece))
        pieces += piece.source;
    EXPECT_EQ(pieces, page);
}

TEST(HtmlScanner, ReadsTagsWithTheirAttributes)
{
    const QString page = "<IMG Src = \"a &amp; b.png\" alt='x > y' width=40 ismap>";
    HtmlScanner scanner(page);
    HtmlPiece piece;
    ASSERT_TRUE(scanner.next(piece));
    EXPECT_EQ(piece.tag, "img");
    EXPECT_EQ(piece.attribute(u"src"), "a & b.png");
    EXPECT_EQ(piece.attribute(u"alt"), "x > y");
    EXPECT_EQ(piece.attribute(u"missing"), "");
}

TEST(HtmlEntities, AreResolved)
{
    EXPECT_EQ(ResolveEntities(u"&lt;70 &deg;F&gt; &amp;&nbsp;&#176;&#xB0;&ndash;&eacute;"),
              QString::fromUtf8("<70 °F> &\u00a0°°–é"));
    for (const char* none :
         {"a & b", "&", "&;", "&unknown;", "&#;", "&#x;", "&#xD800;", "&#1114112;", "&#7;"})
        EXPECT_EQ(ResolveEntities(QString(none)), none);
}

TEST(DecodeText, ReadsBothEncodings)
{
    EXPECT_EQ(DecodeText("70 \xc2\xb0"), QString::fromUtf8("70 °"));
    EXPECT_EQ(DecodeText("70 \xb0 \x93x\x94 \x81"), QString::fromUtf8("70 ° “x” \ufffd"));
}

TEST(PageText, HasTheTitleAndTheWordsAlone)
{
    const PageText said =
        ReadPageText("<head><title> Air &amp;\nwater </title><style>p { }</style></head>"
                     "<p>psy<b>chro</b>meter<p>W<sub>s</sub> is<br>70&deg;<script>x</script>");
    EXPECT_EQ(said.title, "Air & water");
    EXPECT_EQ(said.text, QString::fromUtf8("psychrometer Ws is 70°"));
}

TEST(PageToShow, HasNoColoursOfItsOwn)
{
    EXPECT_EQ(shown("<body bgcolor=\"#fff\" text=black link=blue><font color=white size=2>x</font>"),
              "<body><font size=\"2\">x</font>");
    EXPECT_EQ(shown("<p style=\"color: white; margin-left: 4px\">x"), "<p style=\"; margin-left: 4px;\">x");
    EXPECT_EQ(shown("<style>p { background: #fff; margin: 0 }</style>"), "<style>p {; margin: 0 ;}</style>");
}

TEST(PageToShow, HasNoScripts)
{
    EXPECT_EQ(shown("<script src=a.js>x = '<p>'</script><p onclick=\"x()\">y"), "<p>y");
}

TEST(PageToShow, TellsTheWidthOfAPictureInItsAddress)
{
    EXPECT_EQ(shown("<img src=a.png width=300 height=9999 alt=x>"), "<img src=\"a.png#300\" alt=\"x\">");
    EXPECT_EQ(shown("<img src=\"a.png#b\">"), "<img src=\"a.png#0\">");
    EXPECT_EQ(shown("<img width=99999999 src=a>"), "<img src=\"a#4000\">");
}

TEST(PageToShow, KeepsWhatIsQuoted)
{
    EXPECT_EQ(shown("<a href='a.html?x=\"1\"&amp;y' title=\"&lt;\">z</a>"),
              "<a href=\"a.html?x=&quot;1&quot;&amp;y\" title=\"&lt;\">z</a>");
}

TEST(PageToShow, KeepsTablesAndNestingWithinBounds)
{
    EXPECT_EQ(shown("<td colspan=99999 rowspan=-3>x</td>"), "<td colspan=\"40\" rowspan=\"0\">x</td>");
    const QString deep = PageToShow(QString("<table><tr><td>").repeated(1000));
    EXPECT_EQ(deep.count("<table>"), 6);
    EXPECT_EQ(deep.count("<td>"), 6);
    EXPECT_EQ(PageToShow(QString("<div>").repeated(1000)).count("<div>"), 60);
    EXPECT_EQ(PageToShow(QString("<b>x</b>").repeated(1000)).count("<b>x</b>"), 1000);
    EXPECT_LT(PageToShow(QString("<br>").repeated(200'000)).size(), 200'000);
}

TEST(StyleToShow, LeavesOutColoursImportsAndFixedLetters)
{
    EXPECT_EQ(style("@import url(a.css); /* x: y; */ a:hover { color: red; margin: 1px }"),
              "a:hover {; margin: 1px ;}");
    EXPECT_EQ(style("td { border: 1px solid #ccc; font-size: 9pt }"), "td {border: 1px solid;;}");
    EXPECT_EQ(style("h1 { font-size: large } /* open"), "h1 { font-size: large ;}");
}

TEST(HelpSearchWords, AreLettersAndNumbersInLowerCase)
{
    EXPECT_EQ(SearchWords(" Dew-Point, 7.57 dew "), (QStringList{"dew", "point", "7", "57"}));
    EXPECT_EQ(SearchWords(" ?! "), QStringList());
}

TEST(Sitemap, ReadsLinesOfEveryDepth)
{
    const auto entries =
        ReadSitemap("<ul><li><object><param name=Name value='A &amp; B'></object>"
                    "<ul><li><object><param name='Name' value=C><param name=Local value='c.html'>"
                    "</object></ul></ul></ul></ul><object><param name=name value=D></object>"
                    "<object><param name=Local value=untitled.html></object>");
    ASSERT_EQ(entries.size(), 3);
    EXPECT_EQ(entries[0].title, "A & B");
    EXPECT_EQ(entries[0].level, 0);
    EXPECT_TRUE(entries[0].targets.isEmpty());
    EXPECT_EQ(entries[1].level, 1);
    EXPECT_EQ(entries[1].targets[0].page, "c.html");
    EXPECT_EQ(entries[2].level, 0);
}

TEST(Sitemap, StaysWithinBounds)
{
    const QString line = "<ul><object><param name=Name value=x></object>";
    const auto entries = ReadSitemap(line.repeated(20'000));
    EXPECT_EQ(entries.size(), 10'000);
    EXPECT_EQ(entries.last().level, 31);
}

/// One of the sample's pages with some bytes changed, or repeated until it is large.
class DamagedPage : public testing::TestWithParam<const char*>
{
protected:
    static void read(const QByteArray& bytes)
    {
        const QString page = DecodeText(bytes);
        ReadPageText(page);
        ReadSitemap(page);
        StyleToShow(page);
        QTextDocument document;
        document.setHtml(PageToShow(page));
        document.setTextWidth(600);
        document.size(); // lays it out
    }
    const QByteArray whole = bytesOf(QString(DUNMOOR_TEST_DATA) + "/help/" + GetParam());
};

TEST_P(DamagedPage, IsReadWithAnyBytesChanged)
{
    std::mt19937 random(3);
    for (int time = 0; time < 300; ++time) {
        QByteArray bytes = whole;
        for (unsigned change = 0; change <= random() % 8; ++change)
            bytes[static_cast<qsizetype>(random() % static_cast<unsigned>(bytes.size()))] =
                time % 2 == 0 ? static_cast<char>(random()) : "<>&;'\"=/09"[random() % 10];
        read(bytes);
    }
}

TEST_P(DamagedPage, IsReadCutOffAnywhere)
{
    for (qsizetype length = 0; length < whole.size(); length += 16)
        read(whole.first(length));
}
INSTANTIATE_TEST_SUITE_P(Pages, DamagedPage,
                         testing::Values("index.html", "air.html", "mixed air.html", "sample.css",
                                         "sample.hhc"));

TEST(HostilePage, IsReadInTheEnd)
{
    for (const char* piece :
         {"<", "&", "&a", "<a b=\"", "<a b='", "<!--", "<div>", "<ul><li>", "<table>", "<b>", "<style>", "{",
          "/*", "<p style='a:b;'>", "</p>", "<img src=x>", "\xff"}) {
        const QString page =
            QString::fromLatin1(piece).repeated(200'000 / static_cast<qsizetype>(strlen(piece)));
        ReadPageText(page);
        ReadSitemap(page);
        StyleToShow(page);
        QTextDocument document;
        document.setHtml(PageToShow(page));
    }
}

} // namespace
