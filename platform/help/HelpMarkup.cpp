#include "platform/help/HelpMarkup.h"

#include "platform/help/HtmlScanner.h"

#include <QColor>
#include <QStringList>

#include <algorithm>
#include <utility>

namespace {

constexpr int mostTags = 40'000;
constexpr int mostPictures = 300; // those that are missing take the toolkit longest
constexpr int deepestNesting = 60;
constexpr int deepestTables = 6;

/// What some numbers may be at most.
constexpr std::pair<QStringView, double> largestNumbers[] = {{u"colspan", 40},     {u"rowspan", 200},
                                                             {u"cellpadding", 40}, {u"cellspacing", 40},
                                                             {u"border", 10},      {u"size", 7}};

bool isOneOf(QStringView name, std::initializer_list<QStringView> names)
{
    return std::ranges::find(names, name) != names.end();
}

bool isColour(const QString& attribute)
{
    return attribute.contains("color") ||
           isOneOf(attribute, {u"background", u"text", u"link", u"vlink", u"alink"});
}

/// Elements that have no end tag of their own.
bool isEmptyElement(const QString& tag)
{
    return isOneOf(tag,
                   {u"br", u"hr", u"img", u"meta", u"link", u"input", u"base", u"col", u"area", u"param"});
}

/// Those whose end tag is often left out.
bool mayStayOpen(const QString& tag)
{
    return isOneOf(tag,
                   {u"p", u"li", u"dt", u"dd", u"tr", u"td", u"th", u"option", u"thead", u"tbody", u"tfoot"});
}

QString clamped(const HtmlPiece::Attribute& attribute)
{
    for (const auto& [name, largest] : largestNumbers) {
        if (attribute.name == name)
            return QString::number(qRound(std::clamp(attribute.value.trimmed().toDouble(), 0.0, largest)));
    }
    return attribute.value;
}

/// The width in pixels that a picture is to have; 0 for its own.
int pictureWidth(const HtmlPiece& piece)
{
    const int width = piece.attribute(u"width").toInt();
    return std::clamp(width, 0, 4000);
}

class Rewriter
{
public:
    QString rewrite(const QString& page)
    {
        HtmlScanner scanner(page);
        HtmlPiece piece;
        int tags = 0;
        while (scanner.next(piece) && tags < mostTags) {
            if (piece.kind == HtmlPiece::Kind::Tag) {
                ++tags;
                addTag(piece);
            } else if (piece.kind == HtmlPiece::Kind::Text) {
                addText(piece);
            }
        }
        return shown;
    }

private:
    void addText(const HtmlPiece& piece)
    {
        if (!piece.isInvisible)
            shown += piece.source;
        else if (isInStyle)
            shown += StyleToShow(piece.source.toString());
    }

    void addTag(const HtmlPiece& piece)
    {
        isInStyle = piece.tag == u"style" && !piece.isEnd;
        if (isOneOf(piece.tag, {u"script", u"qt", u"base", u"meta"}) || !fits(piece))
            return;
        if (piece.tag == u"img" && ++pictures > mostPictures)
            return;
        shown += piece.isEnd ? "</" : "<";
        shown += piece.tag;
        if (!piece.isEnd)
            addAttributes(piece);
        shown += '>';
    }

    /// Whether the tag nests no deeper than a page may; keeps count.
    bool fits(const HtmlPiece& piece)
    {
        if (isEmptyElement(piece.tag) || mayStayOpen(piece.tag))
            return tables <= deepestTables;
        int& depth = piece.tag == u"table" ? tables : others;
        const int deepest = piece.tag == u"table" ? deepestTables : deepestNesting;
        depth = std::max(depth + (piece.isEnd ? -1 : 1), 0);
        return piece.isEnd ? depth < deepest : depth <= deepest;
    }

    void addAttributes(const HtmlPiece& piece)
    {
        const bool isPicture = piece.tag == u"img";
        for (const HtmlPiece::Attribute& attribute : piece.attributes) {
            const bool isSize = isOneOf(attribute.name, {u"width", u"height"});
            if (isColour(attribute.name) || attribute.name.startsWith("on") || (isPicture && isSize))
                continue;
            QString value = clamped(attribute);
            if (attribute.name == u"style")
                value = StyleToShow(value);
            if (isPicture && attribute.name == u"src")
                value = value.section('#', 0, 0) + '#' + QString::number(pictureWidth(piece));
            shown += ' ' + attribute.name.toHtmlEscaped() + "=\"" + value.toHtmlEscaped() + '"';
        }
    }

    QString shown;
    bool isInStyle = false;
    int tables = 0; // that are open
    int others = 0;
    int pictures = 0;
};

QString withoutComments(const QString& style)
{
    QString kept;
    qsizetype at = 0;
    while (at < style.size()) {
        const qsizetype start = style.indexOf("/*", at);
        if (start < 0)
            return kept + style.mid(at);
        kept += style.mid(at, start - at);
        const qsizetype end = style.indexOf("*/", start + 2);
        at = end < 0 ? style.size() : end + 2;
    }
    return kept;
}

/// A declaration, or nothing where it isn't to be shown.
QString declarationToShow(const QString& declaration)
{
    const QString property = declaration.section(':', 0, 0).trimmed().toLower();
    const QString value = declaration.section(':', 1).trimmed().toLower();
    const bool isFixedSize = property == u"font-size" && (value.endsWith("px") || value.endsWith("pt"));
    if (property.contains("color") || property.startsWith("background") || isFixedSize)
        return {};
    if (!property.startsWith("border"))
        return declaration;
    QStringList words = value.split(' ', Qt::SkipEmptyParts);
    words.removeIf(
        [](const QString& word) { return QColor::fromString(word).isValid() || word.startsWith("rgb"); });
    return property + ": " + words.join(' ');
}

} // namespace

QString PageToShow(const QString& page) { return Rewriter().rewrite(page); }

QString StyleToShow(const QString& style)
{
    const QString text = withoutComments(style);
    QString shown;
    qsizetype start = 0;
    for (qsizetype at = 0; at <= text.size(); ++at) {
        const bool isAtEnd = at == text.size();
        if (!isAtEnd && text[at] != ';' && text[at] != '{' && text[at] != '}')
            continue;
        const QString part = text.mid(start, at - start);
        const bool isSelector = !isAtEnd && text[at] == '{';
        const bool isImport = part.trimmed().startsWith("@import") || part.trimmed().startsWith("@charset");
        if (isSelector)
            shown += part;
        else if (!isImport && part.contains(':'))
            shown += declarationToShow(part) + ';';
        if (!isAtEnd && text[at] != ';')
            shown += text[at];
        start = at + 1;
    }
    return shown;
}
