#pragma once

#include <QList>
#include <QString>

/// A line of a contents tree or of an index.
struct SitemapEntry
{
    struct Target
    {
        QString title; ///< may be empty
        QString page;  ///< as written: a name, perhaps with an anchor
    };

    int level = 0; ///< of nesting, from 0
    QString title;
    QList<Target> targets; ///< none where the line is a heading only
};

/// Reads a contents or index page of a help file. Lines without a title are left out; at most 10,000 lines
/// and 32 levels are read.
QList<SitemapEntry> ReadSitemap(const QString& page);
