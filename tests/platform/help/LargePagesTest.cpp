// Pages that are too large to lay out are shown as text.

#include "platform/help/HelpSearch.h"
#include "platform/help/PageLimits.h"
#include "tests/platform/help/HelpTest.h"

#include <QTextFrame>

#include <random>

using namespace help;

namespace {

QByteArray table(int rows, int cells, const QByteArray& cell)
{
    return "<table>" + ("<tr>" + cell.repeated(cells) + "</tr>").repeated(rows) + "</table>";
}

class LargePages : public HelpTest
{
protected:
    static void expectItsTextAlone(const QByteArray& page)
    {
        showPage(page + "<p>the &deg; end");
        EXPECT_EQ(heading(), "This page is too large to be laid out. This is its text.");
        EXPECT_EQ(shownTables(), 0);
        delete findHelp();
    }
    static void expectItsLayout(const QByteArray& page)
    {
        showPage(page);
        EXPECT_FALSE(page.contains("<table") && shownTables() == 0);
        EXPECT_NE(heading(), "This page is too large to be laid out. This is its text.");
        delete findHelp();
    }

private:
    static qsizetype shownTables() { return page().document()->rootFrame()->childFrames().size(); }
};

TEST_F(LargePages, OfMoreThan256KiB)
{
    expectItsTextAlone(QByteArray(1 << 20, 'x'));
    expectItsTextAlone("<p>" + QByteArray("word ").repeated(60'000));
    expectItsLayout("<p>" + QByteArray("word ").repeated(10'000));
}

TEST_F(LargePages, OfTablesOfMoreThan10000Cells)
{
    expectItsTextAlone(table(1900, 20, "<td colspan=40>x</td>"));
    expectItsTextAlone(table(30, 9, "<TD COLSPAN = '40'>x</td>"));
    expectItsTextAlone(table(1, 1, "<td rowspan=\"10001\">x"));
    expectItsTextAlone(table(1, 1, "<td rowspan=&#57;&#57;&#57;&#57;&#57;&#57;>x"));
    expectItsTextAlone(table(3, 4000, "<th>"));
    expectItsLayout(table(90, 20, "<td>x</td>"));
}

TEST_F(LargePages, OfTooManyTagsPicturesOrLettersInAWord)
{
    expectItsTextAlone(QByteArray("<b>x</b> ").repeated(2'001));
    expectItsTextAlone(QByteArray("<IMG src=x>").repeated(301));
    expectItsTextAlone(QByteArray(20'001, 'x'));
    expectItsLayout(QByteArray("<b>x</b> ").repeated(1'900) + QByteArray(15'000, 'x'));
}

TEST_F(LargePages, OfTablesInTablesInTables)
{
    expectItsTextAlone(QByteArray("<table><tr><td>").repeated(7));
    expectItsLayout(QByteArray("<table><tr><td>x").repeated(6));
}

TEST_F(LargePages, WithHalfACharacter)
{
    const QString cells = "<td rowspan=10001>x</td>";
    const QString page =
        QChar(QChar::ByteOrderMark) + QString("<table><tr>") + cells + QChar(0xd800) + "<p>the end";
    expectItsTextAlone({reinterpret_cast<const char*>(page.utf16()), page.size() * qsizetype{sizeof(QChar)}});
}

TEST_F(LargePages, KeepTheirWords)
{
    const QString text = WithinLimits(QString("<p>70 &deg;</p>").repeated(20'000) + "a < b");
    EXPECT_TRUE(text.contains("<p>70 &deg; 70 &deg; "));
    EXPECT_EQ(text.count('<'), 6) << "the marks of two paragraphs, one of them in italics";
}

/// A file of the sample with some bytes changed, read as a page, as a style sheet and as a contents page.
class DamagedPage : public testing::TestWithParam<const char*>
{};

void readAndLayOut(const QByteArray& bytes)
{
    const HelpBook book(QList<ChmMember>{{"a.html", bytes}});
    ReadSitemap(bytes);
    FindPages(book, {"air"});
    QTextDocument document;
    document.setDefaultStyleSheet(bytes);
    document.setHtml(book.page("a.html"));
    document.setTextWidth(600);
    document.size(); // triggers the layout
}

TEST_P(DamagedPage, IsReadWithAnyBytesChanged)
{
    const QByteArray whole = BytesOf(QString(DUNMOOR_TEST_DATA) + "/help/" + GetParam());
    std::mt19937 random(3);
    for (int time = 0; time < 100; ++time) {
        QByteArray bytes = whole;
        for (unsigned change = 0; change <= random() % 8; ++change)
            bytes[static_cast<qsizetype>(random() % static_cast<unsigned>(bytes.size()))] =
                time % 2 == 0 ? static_cast<char>(random()) : "<>&;'\"=/09"[random() % 10];
        readAndLayOut(bytes);
    }
}
INSTANTIATE_TEST_SUITE_P(Pages, DamagedPage, testing::Values("air.html", "sample.css", "sample.hhc"));

TEST(HostilePage, IsReadInTheEnd)
{
    for (const char* piece :
         {"<", "&", "&a", "<a b=\"", "<a b='", "<!--", "<div>", "<ul><li>", "<table>", "<b>", "<style>", "{",
          "/*", "<p style='a:b;'>", "</p>", "<img src=x>", "\xff", "x"}) {
        const auto length = static_cast<qsizetype>(strlen(piece));
        readAndLayOut(QByteArray(piece).repeated(2'000));
        readAndLayOut(QByteArray(piece).repeated(200'000 / length));
    }
}

} // namespace
