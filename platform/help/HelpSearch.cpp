#include "platform/help/HelpSearch.h"

#include <QTextDocument>

#include <algorithm>
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
    QString words;
    bool wasInWord = false;
    for (const QChar character : text) {
        const bool isInWord = character.isLetterOrNumber();
        if (isInWord && !wasInWord)
            words += ' ';
        if (isInWord)
            words += character.toLower();
        wasInWord = isInWord;
    }
    return words;
}

} // namespace

QStringList SearchWords(const QString& typed)
{
    QStringList words = spacedWords(typed).split(' ', Qt::SkipEmptyParts);
    words.removeDuplicates();
    return words;
}

void HelpSearch::readPages()
{
    for (const QString& name : book->pages()) {
        WordsAlone read;
        read.setHtml(book->page(name));
        const QString title = read.metaInformation(QTextDocument::DocumentTitle).simplified();
        pages.push_back(
            {{name, title.isEmpty() ? name : title}, spacedWords(title), spacedWords(read.toPlainText())});
    }
}

QList<HelpSearch::Result> HelpSearch::find(const QStringList& words)
{
    if (pages.empty())
        readPages();
    struct Ranked
    {
        qsizetype inTitle = 0;
        qsizetype hits = 0;
        const Result* result = nullptr;
    };
    std::vector<Ranked> found;
    for (const Page& page : pages) {
        Ranked ranked{0, 0, &page.shown};
        bool hasAll = !words.isEmpty();
        for (const QString& word : words) {
            const qsizetype inTitle = page.wordsOfTitle.count(" " + word);
            const qsizetype hits = inTitle + page.words.count(" " + word);
            hasAll = hasAll && hits > 0;
            ranked.inTitle += inTitle;
            ranked.hits += hits;
        }
        if (hasAll)
            found.push_back(ranked);
    }
    std::stable_sort(found.begin(), found.end(), [](const Ranked& one, const Ranked& other) {
        return std::tuple(one.inTitle, one.hits) > std::tuple(other.inTitle, other.hits);
    });
    QList<Result> results;
    for (const Ranked& ranked : found)
        results.append(*ranked.result);
    return results;
}

} // namespace help
