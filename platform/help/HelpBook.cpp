#include "platform/help/HelpBook.h"

#include "platform/help/PageLimits.h"

#include <QDataStream>
#include <QIODevice>
#include <QRegularExpression>
#include <QStringDecoder>
#include <QTextDocumentFragment>

#include <algorithm>
#include <utility>

namespace help {
namespace {

constexpr int homePageCode = 2;
constexpr int mostEntries = 10'000;
constexpr int mostLevels = 32;

/// The text up to the first NUL.
QString textIn(const QByteArray& bytes) { return QString::fromUtf8(bytes.constData()); }

/// Reads the member "#SYSTEM": records of code, length and text. Ignores everything after a damaged record.
QHash<int, QString> readSystem(const QByteArray& member)
{
    QHash<int, QString> texts;
    QDataStream stream(member.mid(4)); // skips the version
    stream.setByteOrder(QDataStream::LittleEndian);
    quint16 code = 0;
    quint16 length = 0;
    while ((stream >> code >> length).status() == QDataStream::Ok) {
        QByteArray data(length, '\0');
        if (stream.readRawData(data.data(), length) != length)
            break;
        texts.insert(code, textIn(data));
    }
    return texts;
}

/// Reads the member "#IVB": pairs of a topic number and the offset of a page's name in the member "#STRINGS".
QHash<int, QString> readTopics(const QByteArray& numbers, const QByteArray& strings)
{
    constexpr qsizetype longestName = 1024;
    QHash<int, QString> pages;
    QDataStream stream(numbers.mid(4)); // skips the length
    stream.setByteOrder(QDataStream::LittleEndian);
    qint32 topic = 0;
    quint32 place = 0;
    while ((stream >> topic >> place).status() == QDataStream::Ok)
        pages.insert(topic, textIn(strings.mid(place, longestName)));
    return pages;
}

QString notice(const QString& heading, const QString& text)
{
    return "<h2>" + heading + "</h2><p>" + text.toHtmlEscaped() + "</p>";
}

} // namespace

QList<SitemapEntry> ReadSitemap(const QString& page)
{
    static const QRegularExpression tag(
        R"re(<(ul|/ul|object|/object)\b|<param\s+name="(name|local)"\s+value="([^"]*)")re",
        QRegularExpression::CaseInsensitiveOption);
    QList<SitemapEntry> entries;
    SitemapEntry entry;
    int depth = 0;
    for (auto tags = tag.globalMatch(page); tags.hasNext() && entries.size() < mostEntries;) {
        const QRegularExpressionMatch match = tags.next();
        const QString name = (match.captured(1) + match.captured(2)).toLower();
        if (name == "ul")
            ++depth;
        else if (name == "/ul")
            depth = std::max(depth - 1, 0);
        else if (name == "object")
            entry = {std::clamp(depth - 1, 0, mostLevels - 1), {}, {}};
        else if (name == "name")
            entry.title = QTextDocumentFragment::fromHtml(match.captured(3)).toPlainText().simplified();
        else if (name == "local")
            entry.page = match.captured(3);
        else if (!entry.title.isEmpty())
            entries.append(std::exchange(entry, {}));
    }
    return entries;
}

HelpBook::HelpBook(QList<ChmMember> unpacked)
    : members(std::move(unpacked)),
      system(readSystem(file("#SYSTEM"))),
      topics(readTopics(file("#IVB"), file("#STRINGS")))
{}

std::shared_ptr<const HelpBook> HelpBook::open(const QByteArray& bytes)
{
    auto book = std::make_shared<const HelpBook>(UnpackChm(bytes));
    return book->pages().isEmpty() ? nullptr : book;
}

const ChmMember* HelpBook::find(const QString& name) const
{
    const auto found = std::ranges::find_if(members, [&name](const ChmMember& member) {
        return member.name.compare(name, Qt::CaseInsensitive) == 0;
    });
    return found == members.end() ? nullptr : &*found;
}

QByteArray HelpBook::file(const QString& name) const
{
    const ChmMember* const member = find(name);
    return member == nullptr ? QByteArray() : member->bytes;
}

QString HelpBook::text(const QString& name) const
{
    const QByteArray bytes = file(name);
    QStringDecoder decoder = QStringDecoder::decoderForHtml(bytes);
    if (!decoder.isValid())
        decoder = QStringDecoder(QStringDecoder::Latin1);
    const QString decoded = decoder(bytes);
    return QString::fromUtf8(decoded.toUtf8()); // without half characters: regular expressions refuse them
}

QString HelpBook::homePage() const
{
    const QString named = system.value(homePageCode);
    return find(named) == nullptr ? pages().value(0) : named;
}

QString HelpBook::pageOfTopic(int topic) const
{
    const QString page = topics.value(topic);
    return find(page.section('#', 0, 0)) == nullptr ? QString() : page;
}

QStringList HelpBook::pages() const
{
    QStringList names;
    for (const ChmMember& member : members) {
        if (member.name.endsWith(".htm", Qt::CaseInsensitive) ||
            member.name.endsWith(".html", Qt::CaseInsensitive))
            names.append(member.name);
    }
    return names;
}

QString HelpBook::page(const QString& name) const
{
    const ChmMember* const member = find(name);
    if (member == nullptr)
        return notice("No such page", "This help has no page \"" + name + "\".");
    if (member->bytes.isNull())
        return notice("Page not readable", "The page \"" + name + "\" of the help file is damaged.");
    return WithinLimits(text(name)) + ' '; // never empty: an empty page is not a missing one
}

} // namespace help
