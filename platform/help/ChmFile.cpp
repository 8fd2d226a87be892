#include "platform/help/ChmFile.h"

#include "platform/help/MemorySystem.h"

#include <algorithm>
#include <vector>

namespace {

QString nameOf(const mschmd_file& member)
{
    const QString name = QString::fromUtf8(member.filename);
    return name.startsWith('/') ? name.mid(1) : name;
}

/// Whether unpacking the member stays within the limits. To reach it, all that stands before it may have to
/// be unpacked, too.
bool isWithinLimits(const mschmd_file& member)
{
    return member.length >= 0 && member.length <= ChmFile::largestMember && member.offset >= 0 &&
           member.offset <= ChmFile::largestContent - member.length;
}

/// Whether people see it: neither a folder nor one of the file's own tables.
bool isForPeople(const QString& name)
{
    return !name.isEmpty() && !name.endsWith('/') && !name.startsWith('#') && !name.startsWith('$') &&
           !name.startsWith("::");
}

/// The bytes as the unpacking library accepts them. Some compilers write the first of the two identifiers in
/// the header twice, which it takes for a wrong signature.
QByteArray withSecondIdentifier(QByteArray bytes)
{
    constexpr qsizetype first = 0x18;
    constexpr qsizetype length = 16;
    constexpr qsizetype second = first + length;
    if (bytes.size() >= second + length && bytes.mid(first, length) == bytes.mid(second, length))
        bytes[second] = 0x11; // the one byte in which they differ
    return bytes;
}

} // namespace

ChmFile::ChmFile(const QByteArray& bytes)
    : memory(std::make_unique<MemorySystem>(bytes)), unpacker(mspack_create_chm_decompressor(memory.get()))
{}

ChmFile::~ChmFile()
{
    if (unpacker != nullptr && header != nullptr)
        unpacker->close(unpacker, header);
    mspack_destroy_chm_decompressor(unpacker);
}

std::unique_ptr<ChmFile> ChmFile::open(const QByteArray& bytes)
{
    if (bytes.size() > largestFile)
        return nullptr;
    std::unique_ptr<ChmFile> file(new ChmFile(withSecondIdentifier(bytes)));
    if (file->unpacker == nullptr)
        return nullptr;
    file->header = file->unpacker->open(file->unpacker, MemorySystem::inputName);
    if (file->header == nullptr)
        return nullptr;
    file->addMembers(file->header->files);
    file->addMembers(file->header->sysfiles);
    return file;
}

void ChmFile::addMembers(mschmd_file* first)
{
    for (mschmd_file* member = first; member != nullptr && members.size() < mostMembers;
         member = member->next) {
        const QString name = nameOf(*member).toLower();
        if (isWithinLimits(*member) && !members.contains(name))
            members.insert(name, member);
    }
}

QStringList ChmFile::names() const
{
    std::vector<const mschmd_file*> shown;
    for (const mschmd_file* member : members) {
        if (isForPeople(nameOf(*member)))
            shown.push_back(member);
    }
    std::ranges::sort(shown, {}, [](const mschmd_file* member) {
        return std::pair(member->offset, nameOf(*member)); // the name, for empty members at one place
    });
    QStringList names;
    for (const mschmd_file* member : shown)
        names.append(nameOf(*member));
    return names;
}

bool ChmFile::has(const QString& name) const { return members.contains(name.toLower()); }

std::optional<QByteArray> ChmFile::read(const QString& name) const
{
    mschmd_file* const member = members.value(name.toLower());
    if (member == nullptr)
        return std::nullopt;
    memory->output.clear();
    memory->outputLimit = member->length;
    const int error = unpacker->extract(unpacker, member, MemorySystem::outputName);
    if (error != MSPACK_ERR_OK || memory->output.size() != member->length)
        return std::nullopt;
    return std::exchange(memory->output, {});
}
