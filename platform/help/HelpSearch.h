#pragma once

#include "platform/help/HelpBook.h"

#include <QString>
#include <QStringList>

#include <vector>

namespace help {

/// A page found by its words.
struct FoundPage
{
    QString page;
    QString title;
    qsizetype hitsInTitle = 0;
    qsizetype hits = 0; ///< in all
};

/// The distinct words of a search text, in lower case.
QStringList SearchWords(const QString& typed);

/// The pages that contain every word, or a longer word that starts with it. Pages with a word in the title
/// come first, then those with the most hits.
std::vector<FoundPage> FindPages(const HelpBook& book, const QStringList& words);

} // namespace help
