#pragma once

#include <QList>
#include <QString>

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

} // namespace help
