#pragma once

#include <QByteArray>
#include <QHash>
#include <QStringList>

#include <memory>
#include <optional>

struct mschm_decompressor;
struct mschmd_file;
struct mschmd_header;
struct MemorySystem;

/// A compiled help file in memory: its members by name. Nothing in the file is trusted: what is damaged is
/// missing or unreadable, and sizes have limits. Names have no leading slash; upper and lower case are one.
class ChmFile
{
public:
    static constexpr qint64 largestFile = 16 << 20;
    static constexpr qint64 largestMember = 4 << 20;
    static constexpr qint64 largestContent = 64 << 20; ///< of all members, unpacked
    static constexpr int mostMembers = 4096;

    /// @return nothing where the bytes can't be read as a help file
    static std::unique_ptr<ChmFile> open(const QByteArray& bytes);
    ~ChmFile();
    ChmFile(const ChmFile&) = delete;
    ChmFile& operator=(const ChmFile&) = delete;

    /// The members that people see, as the file spells them, in the order in which they are unpacked fastest.
    QStringList names() const;
    bool has(const QString& name) const;
    /// @return nothing where there is no such member or it is damaged
    std::optional<QByteArray> read(const QString& name) const;

private:
    explicit ChmFile(const QByteArray& bytes);
    void addMembers(mschmd_file* first);

    std::unique_ptr<MemorySystem> memory;
    mschm_decompressor* unpacker;
    mschmd_header* header = nullptr;
    QHash<QString, mschmd_file*> members; // by name in lower case
};
