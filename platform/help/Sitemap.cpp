#include "platform/help/Sitemap.h"

#include <QRegularExpression>
#include <QTextDocumentFragment>

#include <algorithm>
#include <utility>

namespace help {

namespace {

constexpr int mostEntries = 10'000;
constexpr int mostLevels = 32;

} // namespace

QList<SitemapEntry> ReadSitemap(const QString& page)
{
    static const QRegularExpression tag(
        R"re(<(ul|/ul|object|/object)\b|<param\s+name="(name|local)"\s+value="([^"]*)")re",
        QRegularExpression::CaseInsensitiveOption);
    QList<SitemapEntry> entries;
    SitemapEntry entry;
    int depth = 0;
    for (auto tags = tag.globalMatch(page); tags.hasNext() && entries.size() < mostEntries;) {
        const QRegularExpressionMatch match = tags.next();
        const QString name = (match.captured(1) + match.captured(2)).toLower();
        if (name == "ul")
            ++depth;
        else if (name == "/ul")
            depth = std::max(depth - 1, 0);
        else if (name == "object")
            entry = {std::clamp(depth - 1, 0, mostLevels - 1), {}, {}};
        else if (name == "name")
            entry.title = QTextDocumentFragment::fromHtml(match.captured(3)).toPlainText().simplified();
        else if (name == "local")
            entry.page = match.captured(3);
        else if (!entry.title.isEmpty())
            entries.append(std::exchange(entry, {}));
    }
    return entries;
}

} // namespace help
