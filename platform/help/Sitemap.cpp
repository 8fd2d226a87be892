#include "platform/help/Sitemap.h"

#include "platform/help/HtmlScanner.h"

#include <algorithm>

namespace {

constexpr int mostEntries = 10'000;
constexpr int mostLevels = 32;
constexpr int mostTargets = 100;

/// Takes one parameter of an entry. The first name is the entry's own; each further one is the title of the
/// page that is named next.
void takeParameter(SitemapEntry& entry, QString& nextTitle, const HtmlPiece& piece)
{
    const QString name = piece.attribute(u"name").toLower();
    const QString value = piece.attribute(u"value").simplified();
    if (name == u"name") {
        if (entry.title.isEmpty())
            entry.title = value;
        else
            nextTitle = value;
    } else if (name == u"local" && !value.isEmpty() && entry.targets.size() < mostTargets) {
        entry.targets.append({std::exchange(nextTitle, {}), value});
    }
}

} // namespace

QList<SitemapEntry> ReadSitemap(const QString& page)
{
    QList<SitemapEntry> entries;
    SitemapEntry entry;
    QString nextTitle;
    int depth = 0;
    HtmlScanner scanner(page);
    HtmlPiece piece;
    while (scanner.next(piece) && entries.size() < mostEntries) {
        if (piece.tag == u"ul") {
            depth = std::max(depth + (piece.isEnd ? -1 : 1), 0);
        } else if (piece.tag == u"object" && !piece.isEnd) {
            entry = {};
            nextTitle.clear();
        } else if (piece.tag == u"param") {
            takeParameter(entry, nextTitle, piece);
        } else if (piece.tag == u"object" && !entry.title.isEmpty()) {
            entry.level = std::clamp(depth - 1, 0, mostLevels - 1);
            entries.append(std::exchange(entry, {}));
        }
    }
    return entries;
}
