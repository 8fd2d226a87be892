#pragma once

#include "platform/help/HelpBook.h"

#include <QList>
#include <QString>
#include <QStringList>

#include <memory>
#include <vector>

namespace help {

/// The words of what a user types to search, in lower case, each once.
QStringList SearchWords(const QString& typed);

/// Finds pages by their words. The pages are read at the first search.
class HelpSearch
{
public:
    explicit HelpSearch(std::shared_ptr<const HelpBook> searched) : book(std::move(searched)) {}

    struct Result
    {
        QString page;
        QString title;
    };
    /// The pages that hold every word, or a longer one that begins with it: those with a word in their title
    /// first, then those with most hits.
    QList<Result> find(const QStringList& words);

private:
    struct Page
    {
        Result shown;
        QString wordsOfTitle; ///< in lower case, a space before each
        QString words;
    };
    void readPages();

    std::shared_ptr<const HelpBook> book;
    std::vector<Page> pages;
};

} // namespace help
