#pragma once

#include "platform/help/ChmFile.h"

#include <QHash>
#include <QString>
#include <QStringList>

#include <memory>

namespace help {

/// A line of the contents tree or of the index.
struct SitemapEntry
{
    int level = 0; ///< of nesting, from 0
    QString title;
    QString page; ///< as written: a name, perhaps with an anchor; empty if the line is only a heading
};

/// Reads a contents or index page of a help file. Ignores lines without a title; reads at most 10,000 lines
/// and 32 levels.
QList<SitemapEntry> ReadSitemap(const QString& page);

/// A help file as its reader sees it: pages, a contents tree, an index, numbered topics. Page names ignore
/// case. A reference may have an anchor: "air.html#range".
class HelpBook
{
public:
    /// @return null if the bytes are not a help file or contain no page
    static std::shared_ptr<const HelpBook> open(const QByteArray& bytes);
    explicit HelpBook(QList<ChmMember> unpacked);

    QString title() const { return system.value(3); } ///< may be empty
    QString homePage() const;
    QString pageOfTopic(int topic) const; ///< empty if the file has no such topic
    QList<SitemapEntry> contents() const { return ReadSitemap(text(system.value(0))); }
    QList<SitemapEntry> index() const { return ReadSitemap(text(system.value(1))); }

    QStringList pages() const;
    /// The HTML to show for a page: the page itself, or a notice if it is missing or damaged. Returns only
    /// the text of a page that is too large to lay out (see PageLimits.h).
    QString page(const QString& name) const;
    QByteArray file(const QString& name) const; ///< empty if missing or damaged

private:
    const ChmMember* find(const QString& name) const;
    QString text(const QString& name) const;

    QList<ChmMember> members;
    QHash<int, QString> system; ///< the file's own description, by code
    QHash<int, QString> topics;
};

} // namespace help
