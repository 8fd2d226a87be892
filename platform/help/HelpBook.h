#pragma once

#include "platform/help/ChmFile.h"
#include "platform/help/HelpTables.h"
#include "platform/help/Sitemap.h"

#include <QHash>
#include <QString>

#include <memory>
#include <optional>

/// A help file as its reader sees it: pages, a contents tree, an index, numbered topics. A page is named as
/// in the file; a reference may carry an anchor, as "air.html#range".
class HelpBook
{
public:
    /// @return nothing where the bytes are no help file, or one without a page
    static std::shared_ptr<const HelpBook> open(const QByteArray& bytes);

    QString title() const { return system.title; } ///< may be empty
    QString homePage() const { return home; }
    QString pageOfTopic(int topic) const; ///< empty where the file has no such topic
    QList<SitemapEntry> contents() const { return readSitemap(system.contents, ".hhc"); }
    QList<SitemapEntry> index() const { return readSitemap(system.index, ".hhk"); }

    QStringList files() const { return file->names(); }
    QStringList pages() const; ///< of the files
    bool has(const QString& name) const { return file->has(name); }
    /// @return nothing where there is no such page, or it is damaged or larger than a page can be
    std::optional<QString> readPage(const QString& name) const;
    std::optional<QByteArray> readFile(const QString& name) const { return file->read(name); }

private:
    explicit HelpBook(std::unique_ptr<ChmFile> opened);
    QString chooseHomePage() const;
    QString findMember(const QString& reference) const;
    QList<SitemapEntry> readSitemap(const QString& name, const QString& ending) const;

    std::unique_ptr<ChmFile> file;
    SystemTable system;
    QHash<int, QString> topics;
    QString home;
};
