#include "platform/help/PageLimits.h"

#include <QRegularExpression>

#include <algorithm>

namespace help {
namespace {

constexpr qsizetype largestPage = 256 << 10; // in characters
constexpr qsizetype mostTags = 4'000;
constexpr qsizetype mostPictures = 300;
constexpr int longestWord = 20'000;
constexpr double mostCells = 10'000;
constexpr int deepestTables = 6;

/// Whether the page's tables stay within the limits. May overestimate the number of cells.
bool hasSmallTables(const QString& page)
{
    static const QRegularExpression part(
        R"(<(tr)\b|<t[dh]\b|(<table)\b|(</table)\b|\b(col|row)span\s*=\s*["']?\s*(\d*))",
        QRegularExpression::CaseInsensitiveOption);
    double rows = 1; // cells may appear without a row
    double cellsInRow = 0;
    double widest = 0;
    int depth = 0;
    for (auto parts = part.globalMatch(page); parts.hasNext();) {
        const QRegularExpressionMatch match = parts.next();
        const bool isSpan = match.hasCaptured(4);
        const double span = match.capturedView(5).isEmpty() ? mostCells : match.capturedView(5).toDouble();
        if (match.hasCaptured(1)) {
            ++rows;
            cellsInRow = 0;
        } else if (match.hasCaptured(2)) {
            ++depth;
        } else if (match.hasCaptured(3)) {
            depth = std::max(depth - 1, 0);
        } else if (isSpan && match.capturedView(4).startsWith('r', Qt::CaseInsensitive)) {
            rows += span - 1;
        } else {
            cellsInRow += isSpan ? span - 1 : 1;
        }
        widest = std::max(widest, cellsInRow);
        if (depth > deepestTables || rows * widest > mostCells)
            return false;
    }
    return true;
}

/// Whether the page has no word so long that wrapping it would be slow.
bool hasShortWords(const QString& page)
{
    int length = 0;
    return std::ranges::none_of(page, [&length](QChar character) {
        length = character.isSpace() ? 0 : length + 1;
        return length > longestWord;
    });
}

/// The words of a page, with very long ones split.
QString textOf(const QString& page)
{
    static const QRegularExpression tags("<[^>]*>");
    static const QRegularExpression longWord("(\\S{200})");
    QString text = page.left(largestPage).replace(tags, " ").replace('<', "&lt;").simplified();
    return text.replace(longWord, "\\1 ");
}

} // namespace

QString WithinLimits(const QString& page)
{
    const bool isShort = page.size() <= largestPage && page.count('<') <= mostTags &&
                         page.count("<img", Qt::CaseInsensitive) <= mostPictures;
    if (isShort && hasSmallTables(page) && hasShortWords(page))
        return page;
    return "<p><i>This page is too large to be laid out. This is its text.</i></p><p>" + textOf(page) +
           "</p>";
}

} // namespace help
