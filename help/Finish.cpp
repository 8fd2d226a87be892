// help-finish HELP-FILE STRINGS PREFIX: finishes a help file compiled by chmcmd.
//
// - chmcmd puts the path of the project's folder, PREFIX, before the names of the numbered topics. A viewer
//   that uses these names literally finds no page. STRINGS is the table of names, extracted from the file. It
//   is part of the compressed section, so the corrected table is appended after that section and its
//   directory entry changed.
// - chmcmd writes two time stamps, which would make every build differ. They are set to 0.
// - chmcmd writes the first of the header's two identifiers twice. The second is corrected.

#include <QByteArray>
#include <QFile>
#include <QtEndian>

#include <cstdio>
#include <exception>
#include <stdexcept>

namespace {

constexpr qsizetype timeAt = 0x10; // in the header, like the others
constexpr qsizetype secondIdentifierAt = 0x28;
constexpr qsizetype directoryAt = 0x48;
constexpr qsizetype contentAt = 0x58;
constexpr qsizetype fileSizeAt = 0x68;
constexpr qsizetype headerSize = 0x78;

QByteArray read(const char* path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        throw std::runtime_error(std::string("can't read ") + path);
    return file.readAll();
}

/// The number at an offset of the header.
qsizetype number(const QByteArray& file, qsizetype at)
{
    return static_cast<qsizetype>(qFromLittleEndian<quint64>(file.constData() + at));
}

qsizetype find(const QByteArray& file, const QByteArray& wanted, qsizetype from)
{
    const qsizetype at = file.indexOf(wanted, from);
    if (at < 0)
        throw std::runtime_error("the help file is not as chmcmd writes it");
    return at;
}

/// Removes the prefix from every name. Each string keeps its offset.
QByteArray withoutPrefix(QByteArray strings, const QByteArray& prefix)
{
    if (!strings.contains(prefix))
        throw std::runtime_error("no name begins with " + prefix.toStdString());
    for (qsizetype at = 0; (at = strings.indexOf(prefix, at)) >= 0;) {
        const qsizetype end = find(strings, QByteArray(1, '\0'), at);
        strings.remove(at, prefix.size()).insert(end - prefix.size(), prefix.size(), '\0');
    }
    return strings;
}

/// Overwrites a stored offset: seven bits per byte, the highest first, every byte but the last marked.
void overwriteOffset(QByteArray& file, qsizetype at, qsizetype offset)
{
    qsizetype last = at;
    while ((file.at(last) & 0x80) != 0)
        ++last;
    for (qsizetype byte = last; byte >= at; --byte, offset >>= 7)
        file[byte] = static_cast<char>((offset & 0x7F) | (byte == last ? 0 : 0x80));
    if (offset != 0)
        throw std::runtime_error("the file has become too large for its directory");
}

void appendStrings(QByteArray& file, const QByteArray& strings)
{
    const QByteArray entry = "\x09/#STRINGS";
    const qsizetype section = find(file, entry, number(file, directoryAt)) + entry.size();
    file[section] = 0; // the uncompressed section
    overwriteOffset(file, section + 1, file.size() - number(file, contentAt));
    file += strings;
    qToLittleEndian(static_cast<quint64>(file.size()), file.data() + fileSizeAt);
}

void finish(const char* helpFile, const char* stringsFile, const char* prefix)
{
    QByteArray file = read(helpFile);
    if (file.size() < headerSize)
        throw std::runtime_error("the help file is too short");
    const QByteArray timeRecord("\x03\0\0\0\x0A\0\4\0", 8); // first record of the table "#SYSTEM"
    file.replace(find(file, timeRecord, number(file, contentAt)) + timeRecord.size(), 4, QByteArray(4, '\0'));
    file.replace(timeAt, 4, QByteArray(4, '\0'));
    file[secondIdentifierAt] = 0x11; // the only byte in which they differ
    appendStrings(file, withoutPrefix(read(stringsFile), prefix));
    QFile out(helpFile);
    if (!out.open(QIODevice::WriteOnly) || out.write(file) != file.size() || !out.flush())
        throw std::runtime_error(std::string("can't write ") + helpFile);
}

} // namespace

int main(int argc, char** argv)
{
    if (argc != 4) {
        std::fprintf(stderr, "usage: %s HELP-FILE STRINGS PREFIX\n", *argv);
        return 2;
    }
    try {
        finish(argv[1], argv[2], argv[3]);
    } catch (const std::exception& failure) {
        std::fprintf(stderr, "%s: %s\n", *argv, failure.what());
        return 1;
    }
    return 0;
}
