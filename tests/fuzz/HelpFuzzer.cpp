// Any bytes as a compiled help file, read as the help window does.

#include "platform/help/HelpBook.h"
#include "tests/fuzz/Fuzz.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const QByteArray bytes =
        QByteArray::fromRawData(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    const auto book = help::HelpBook::open(bytes);
    if (!book)
        return 0;
    const QStringList pages = book->pages();
    Require(!pages.isEmpty());
    for (const QString& page : pages)
        Require(!book->page(page).isEmpty());
    for (const auto& entries : {book->contents(), book->index()}) {
        for (const help::SitemapEntry& entry : entries)
            Require(entry.level >= 0 && entry.level < 32 && !entry.title.isEmpty());
    }
    const QString home = book->homePage();
    Require(!home.isEmpty());
    for (int topic = 0; topic < 8; ++topic) {
        const QString page = book->pageOfTopic(topic);
        Require(page.isEmpty() || !book->page(page).isEmpty());
    }
    return 0;
}
