#include "platform/help/ChmFile.h"

#include <QFile>
#include <QTemporaryDir>

#include <mspack.h>

#include <algorithm>
#include <memory>
#include <tuple>
#include <vector>

namespace help {
namespace {

/// The members within the limits, in the order that unpacks fastest.
std::vector<mschmd_file*> membersOf(const mschmd_header& header)
{
    std::vector<mschmd_file*> members;
    for (mschmd_file* first : {header.files, header.sysfiles}) {
        for (mschmd_file* member = first; member != nullptr; member = member->next) {
            const bool fits = member->length >= 0 && member->length <= largestChmMember &&
                              member->offset >= 0 && member->offset <= largestChmContent;
            if (fits && members.size() < mostChmMembers)
                members.push_back(member);
        }
    }
    std::ranges::sort(members, {}, [](const mschmd_file* member) {
        return std::tuple(member->offset, QByteArrayView(member->filename)); // empty members share an offset
    });
    return members;
}

QByteArray readAll(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

QList<ChmMember> UnpackChm(const QByteArray& bytes)
{
    const QTemporaryDir folder;
    const QString unpacked = folder.filePath("unpacked");
    QFile packed(folder.filePath("packed"));
    if (bytes.size() > largestChmFile || !packed.open(QIODevice::WriteOnly) ||
        packed.write(bytes) != bytes.size() || !packed.flush())
        return {};
    const std::unique_ptr<mschm_decompressor, void (*)(mschm_decompressor*)> unpacker(
        mspack_create_chm_decompressor(nullptr), mspack_destroy_chm_decompressor);
    const QByteArray path = QFile::encodeName(packed.fileName());
    mschmd_header* const header = unpacker ? unpacker->open(unpacker.get(), path.constData()) : nullptr;
    if (header == nullptr)
        return {};
    QList<ChmMember> members;
    qint64 content = 0;
    for (mschmd_file* member : membersOf(*header)) {
        if ((content += member->length) > largestChmContent)
            break;
        const QString name = QString::fromUtf8(member->filename);
        const int error = unpacker->extract(unpacker.get(), member, QFile::encodeName(unpacked).constData());
        const QByteArray read = error == MSPACK_ERR_OK ? readAll(unpacked) : QByteArray();
        members.append(
            {name.startsWith('/') ? name.mid(1) : name, read.size() == member->length ? read : QByteArray()});
    }
    unpacker->close(unpacker.get(), header);
    return members;
}

} // namespace help
