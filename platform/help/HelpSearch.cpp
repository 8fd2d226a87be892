#include "platform/help/HelpSearch.h"

#include <QRegularExpression>
#include <QTextDocument>

#include <algorithm>
#include <functional>
#include <tuple>

namespace help {
namespace {

/// Reads a page without loading its resources.
class WordsAlone : public QTextDocument
{
public:
    QVariant loadResource(int /*type*/, const QUrl& /*name*/) override { return QString(); }
};

/// The words of a text in lower case, each preceded by a space.
QString spacedWords(const QString& text)
{
    static const QRegularExpression betweenWords("[^\\p{L}\\p{N}]+");
    return ' ' + text.toLower().replace(betweenWords, " ");
}

} // namespace

QStringList SearchWords(const QString& typed)
{
    QStringList words = spacedWords(typed).split(' ', Qt::SkipEmptyParts);
    words.removeDuplicates();
    return words;
}

std::vector<FoundPage> FindPages(const HelpBook& book, const QStringList& words)
{
    std::vector<FoundPage> found;
    for (const QString& name : words.isEmpty() ? QStringList() : book.pages()) {
        WordsAlone read;
        read.setHtml(book.page(name));
        const QString title = read.metaInformation(QTextDocument::DocumentTitle).simplified();
        const QString titleWords = spacedWords(title);
        const QString pageWords = spacedWords(read.toPlainText());
        FoundPage page{name, title.isEmpty() ? name : title};
        const bool hasAll = std::ranges::all_of(words, [&](const QString& word) {
            const qsizetype inTitle = titleWords.count(' ' + word);
            const qsizetype hits = inTitle + pageWords.count(' ' + word);
            page.hitsInTitle += inTitle;
            page.hits += hits;
            return hits > 0;
        });
        if (hasAll)
            found.push_back(page);
    }
    std::ranges::stable_sort(found, std::greater(),
                             [](const FoundPage& page) { return std::tuple(page.hitsInTitle, page.hits); });
    return found;
}

} // namespace help
