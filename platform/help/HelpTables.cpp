#include "platform/help/HelpTables.h"

#include "platform/help/HtmlScanner.h"

#include <iterator>

namespace {

/// Reads numbers, low byte first. Beyond the end there are none.
class Bytes
{
public:
    explicit Bytes(const QByteArray& all, qsizetype start) : bytes(all), at(start) {}

    bool holds(qsizetype count) const { return bytes.size() - at >= count; }
    quint16 takeShort() { return static_cast<quint16>(take(2)); }
    quint32 takeLong() { return take(4); }
    QByteArray takeBytes(qsizetype count)
    {
        at += count;
        return bytes.mid(at - count, count);
    }

private:
    quint32 take(int count)
    {
        quint32 number = 0;
        for (int place = 0; place < count; ++place)
            number |= quint32{static_cast<quint8>(bytes[at++])} << (8 * place);
        return number;
    }

    const QByteArray& bytes;
    qsizetype at;
};

/// The text up to the first NUL.
QString textIn(const QByteArray& bytes)
{
    const qsizetype end = bytes.indexOf('\0');
    return DecodeText(end < 0 ? bytes : bytes.first(end));
}

} // namespace

SystemTable ReadSystemTable(const QByteArray& member)
{
    SystemTable table;
    QString* const texts[] = {&table.contents, &table.index, &table.homePage, &table.title}; // by code
    Bytes bytes(member, 4); // behind the version
    while (bytes.holds(4)) {
        const quint16 code = bytes.takeShort();
        const quint16 length = bytes.takeShort();
        if (!bytes.holds(length))
            break;
        const QByteArray data = bytes.takeBytes(length);
        if (code < std::size(texts))
            *texts[code] = textIn(data);
    }
    return table;
}

QHash<int, QString> ReadTopicMap(const QByteArray& numbers, const QByteArray& strings)
{
    QHash<int, QString> map;
    Bytes bytes(numbers, 4); // behind the length
    while (bytes.holds(8)) {
        const auto topic = static_cast<int>(bytes.takeLong());
        const quint32 place = bytes.takeLong();
        if (place < strings.size())
            map.insert(topic, textIn(strings.mid(place, 1024)));
    }
    return map;
}
