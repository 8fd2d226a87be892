#include "platform/help/HtmlScanner.h"

#include "platform/help/HtmlEntities.h"

#include <QStringDecoder>

#include <algorithm>

namespace {

constexpr qsizetype mostAttributes = 64;

bool isSpace(QChar character) { return character.isSpace(); }

qsizetype skipSpaces(QStringView text, qsizetype at)
{
    while (at < text.size() && isSpace(text[at]))
        ++at;
    return at;
}

/// Where a name or a value without quotes ends.
qsizetype endOfWord(QStringView text, qsizetype at, QStringView enders)
{
    while (at < text.size() && !isSpace(text[at]) && !enders.contains(text[at]))
        ++at;
    return at;
}

/// Where the tag at the start of the text ends: behind the next > that stands in no quotes.
qsizetype endOfTag(QStringView text)
{
    QChar quote;
    for (qsizetype at = 1; at < text.size(); ++at) {
        const QChar character = text[at];
        if (!quote.isNull()) {
            if (character == quote)
                quote = QChar();
        } else if ((character == '"' || character == '\'') && text[at - 1] == '=') {
            quote = character;
        } else if (character == '>') {
            return at + 1;
        }
    }
    const qsizetype close = text.indexOf('>'); // a quote is not closed
    return close < 0 ? text.size() : close + 1;
}

void scanAttributes(QStringView inside, QList<HtmlPiece::Attribute>& attributes)
{
    qsizetype at = 0;
    while ((at = skipSpaces(inside, at)) < inside.size() && attributes.size() < mostAttributes) {
        const qsizetype nameEnd = std::max(endOfWord(inside, at, u"=/"), at + 1);
        HtmlPiece::Attribute attribute{inside.sliced(at, nameEnd - at).toString().toLower(), {}};
        at = skipSpaces(inside, nameEnd);
        if (at < inside.size() && inside[at] == '=') {
            at = skipSpaces(inside, at + 1);
            const bool isQuoted = at < inside.size() && (inside[at] == '"' || inside[at] == '\'');
            const qsizetype start = isQuoted ? at + 1 : at;
            qsizetype end = isQuoted ? inside.indexOf(inside[at], start) : endOfWord(inside, at, u"");
            if (end < 0)
                end = inside.size();
            attribute.value = ResolveEntities(inside.sliced(start, end - start));
            at = std::min(isQuoted ? end + 1 : end, inside.size());
        }
        if (attribute.name != u"/")
            attributes.append(attribute);
    }
}

/// What the 32 codes from 0x80 mean in the western code page; 0xFFFD where they mean nothing.
constexpr char16_t westernCodes[] = {0x20AC, 0xFFFD, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                     0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0xFFFD, 0x017D, 0xFFFD,
                                     0xFFFD, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                     0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0xFFFD, 0x017E, 0x0178};

} // namespace

QString HtmlPiece::attribute(QStringView name) const
{
    for (const Attribute& attribute : attributes) {
        if (attribute.name == name)
            return attribute.value;
    }
    return {};
}

QStringView HtmlScanner::take(qsizetype length)
{
    const QStringView taken = rest.first(length);
    rest = rest.sliced(length);
    return taken;
}

bool HtmlScanner::next(HtmlPiece& piece)
{
    if (rest.isEmpty())
        return false;
    piece = {};
    if (!hiddenElement.isEmpty())
        scanHidden(piece);
    else if (rest.startsWith(u"<!") || rest.startsWith(u"<?"))
        scanComment(piece);
    else if (rest.size() > 1 && rest[0] == '<' && (rest[1].isLetter() || rest[1] == '/'))
        scanTag(piece);
    else
        scanText(piece);
    return true;
}

void HtmlScanner::scanText(HtmlPiece& piece)
{
    const qsizetype end = rest.indexOf('<', 1); // a < that begins no tag is text
    piece.kind = HtmlPiece::Kind::Text;
    piece.source = take(end < 0 ? rest.size() : end);
}

void HtmlScanner::scanHidden(HtmlPiece& piece)
{
    const qsizetype end = rest.indexOf(QString("</" + hiddenElement), 0, Qt::CaseInsensitive);
    hiddenElement.clear();
    piece.kind = HtmlPiece::Kind::Text;
    piece.isInvisible = true;
    piece.source = take(end < 0 ? rest.size() : end);
}

void HtmlScanner::scanComment(HtmlPiece& piece)
{
    const QStringView ender = rest.startsWith(u"<!--") ? u"-->" : u">";
    const qsizetype end = rest.indexOf(ender);
    piece.source = take(end < 0 ? rest.size() : end + ender.size());
}

void HtmlScanner::scanTag(HtmlPiece& piece)
{
    piece.kind = HtmlPiece::Kind::Tag;
    piece.source = take(endOfTag(rest));
    piece.isEnd = piece.source[1] == '/';
    const qsizetype nameStart = piece.isEnd ? 2 : 1;
    const qsizetype insideEnd = piece.source.endsWith('>') ? piece.source.size() - 1 : piece.source.size();
    const QStringView inside = piece.source.sliced(nameStart, std::max<qsizetype>(insideEnd - nameStart, 0));
    const qsizetype nameEnd = endOfWord(inside, 0, u"/");
    piece.tag = inside.first(nameEnd).toString().toLower();
    scanAttributes(inside.sliced(nameEnd), piece.attributes);
    if (!piece.isEnd && (piece.tag == u"script" || piece.tag == u"style"))
        hiddenElement = piece.tag;
}

QString DecodeText(const QByteArray& bytes)
{
    QStringDecoder utf8(QStringDecoder::Utf8);
    QString text = utf8.decode(bytes);
    if (!utf8.hasError())
        return text;
    QString western = QString::fromLatin1(bytes);
    for (QChar& character : western) {
        const char16_t code = character.unicode();
        if (code >= 0x80 && code < 0xA0)
            character = QChar(westernCodes[code - 0x80]);
    }
    return western;
}
