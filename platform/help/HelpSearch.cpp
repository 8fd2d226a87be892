#include "platform/help/HelpSearch.h"

#include "platform/help/PageText.h"

#include <QElapsedTimer>

#include <algorithm>
#include <tuple>

namespace {

constexpr qsizetype mostText = 16 << 20; // characters of all pages
constexpr qint64 longestReading = 3000;  // ms; an honest file takes a hundredth of it

/// The words of a text in lower case, a space before each.
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
    isRead = true;
    QElapsedTimer clock;
    clock.start();
    qsizetype read = 0;
    for (const QString& name : book->pages()) {
        if (clock.elapsed() > longestReading || read > mostText)
            break;
        const std::optional<QString> page = book->readPage(name);
        if (!page)
            continue;
        const PageText said = ReadPageText(*page);
        read += said.text.size();
        pages.push_back({name, said.title.isEmpty() ? name : said.title, spacedWords(said.title),
                         spacedWords(said.text)});
    }
}

QList<HelpSearch::Result> HelpSearch::find(const QStringList& words)
{
    if (!isRead)
        readPages();
    struct Ranked
    {
        qsizetype inTitle = 0;
        Result result;
    };
    std::vector<Ranked> found;
    for (const Page& page : pages) {
        Ranked ranked{0, {page.name, page.title, 0}};
        bool hasAll = !words.isEmpty();
        for (const QString& word : words) {
            const qsizetype inTitle = page.wordsOfTitle.count(" " + word);
            const qsizetype hits = inTitle + page.words.count(" " + word);
            hasAll = hasAll && hits > 0;
            ranked.inTitle += inTitle;
            ranked.result.hits += hits;
        }
        if (hasAll)
            found.push_back(ranked);
    }
    std::ranges::stable_sort(found, std::ranges::greater(), [](const Ranked& ranked) {
        return std::tuple(ranked.inTitle, ranked.result.hits);
    });
    QList<Result> results;
    for (const Ranked& ranked : found)
        results.append(ranked.result);
    return results;
}
