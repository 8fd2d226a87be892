#include "platform/help/HelpBook.h"

#include "platform/help/HtmlScanner.h"

namespace {

constexpr qsizetype largestPage = 1 << 20;

bool isPage(const QString& name)
{
    return name.endsWith(".htm", Qt::CaseInsensitive) || name.endsWith(".html", Qt::CaseInsensitive);
}

} // namespace

HelpBook::HelpBook(std::unique_ptr<ChmFile> opened)
    : file(std::move(opened)),
      system(ReadSystemTable(file->read("#SYSTEM").value_or(QByteArray()))),
      topics(ReadTopicMap(file->read("#IVB").value_or(QByteArray()),
                          file->read("#STRINGS").value_or(QByteArray()))),
      home(chooseHomePage())
{}

std::shared_ptr<const HelpBook> HelpBook::open(const QByteArray& bytes)
{
    std::unique_ptr<ChmFile> opened = ChmFile::open(bytes);
    if (opened == nullptr)
        return nullptr;
    std::shared_ptr<const HelpBook> book(new HelpBook(std::move(opened)));
    return book->home.isEmpty() ? nullptr : book;
}

QString HelpBook::chooseHomePage() const
{
    QString named = findMember(system.homePage);
    if (!named.isEmpty())
        return named;
    const QStringList all = pages();
    return all.isEmpty() ? QString() : all.first();
}

/// The member that a reference of one of the file's tables means. The compiler may write the page's place on
/// its own disk: then the longest end of that which is a member. Without one, nothing.
QString HelpBook::findMember(const QString& reference) const
{
    const qsizetype anchor = reference.indexOf('#');
    const QString path = anchor < 0 ? reference : reference.first(anchor);
    for (qsizetype start = path.startsWith('/') ? 1 : 0;; start = path.indexOf('/', start) + 1) {
        const QString end = path.mid(start);
        if (!end.isEmpty() && file->has(end))
            return end + reference.mid(path.size());
        if (path.indexOf('/', start) < 0)
            return {};
    }
}

QString HelpBook::pageOfTopic(int topic) const { return findMember(topics.value(topic)); }

QStringList HelpBook::pages() const
{
    QStringList names = file->names();
    names.removeIf([](const QString& name) { return !isPage(name); });
    return names;
}

std::optional<QString> HelpBook::readPage(const QString& name) const
{
    const std::optional<QByteArray> bytes = file->read(name);
    if (!bytes || bytes->size() > largestPage)
        return std::nullopt;
    return DecodeText(*bytes);
}

QList<SitemapEntry> HelpBook::readSitemap(const QString& name, const QString& ending) const
{
    QString member = findMember(name);
    if (member.isEmpty()) {
        for (const QString& other : file->names()) {
            if (other.endsWith(ending, Qt::CaseInsensitive))
                member = other;
        }
    }
    return ReadSitemap(readPage(member).value_or(QString()));
}
