#pragma once

#include "platform/help/HelpBook.h"

#include <QList>
#include <QString>
#include <QStringList>

#include <memory>
#include <vector>

namespace help {

/// The distinct words of a search text, in lower case.
QStringList SearchWords(const QString& typed);

/// Finds pages by their words. Reads the pages on the first search.
class HelpSearch
{
public:
    explicit HelpSearch(std::shared_ptr<const HelpBook> searched) : book(std::move(searched)) {}

    struct Result
    {
        QString page;
        QString title;
    };
    /// The pages that contain every word, or a longer word that starts with it. Pages with a word in the
    /// title come first, then those with the most hits.
    QList<Result> find(const QStringList& words);

private:
    struct Page
    {
        Result shown;
        QString wordsOfTitle; ///< in lower case, each preceded by a space
        QString words;
    };
    void readPages();

    std::shared_ptr<const HelpBook> book;
    std::vector<Page> pages;
};

} // namespace help
