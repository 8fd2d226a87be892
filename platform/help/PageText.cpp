#include "platform/help/PageText.h"

#include "platform/help/HtmlEntities.h"
#include "platform/help/HtmlScanner.h"

#include <algorithm>

namespace {

/// Tags that may stand within a word.
constexpr QStringView tagsInWords[] = {u"a",     u"b",   u"i",   u"u",    u"em",   u"tt",
                                       u"kbd",   u"var", u"sub", u"sup",  u"code", u"samp",
                                       u"small", u"big", u"del", u"span", u"font", u"strong"};

bool partsWords(const HtmlPiece& tag)
{
    return std::ranges::find(tagsInWords, tag.tag) == std::end(tagsInWords);
}

} // namespace

PageText ReadPageText(const QString& page)
{
    PageText said;
    bool isInTitle = false;
    HtmlScanner scanner(page);
    HtmlPiece piece;
    while (scanner.next(piece)) {
        QString& place = isInTitle ? said.title : said.text;
        if (piece.kind == HtmlPiece::Kind::Text && !piece.isInvisible)
            place += ResolveEntities(piece.source);
        else if (piece.kind == HtmlPiece::Kind::Tag && partsWords(piece))
            place += ' ';
        if (piece.tag == u"title")
            isInTitle = !piece.isEnd;
    }
    said.title = said.title.simplified();
    said.text = said.text.simplified();
    return said;
}
