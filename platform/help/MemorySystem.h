#pragma once

#include <QByteArray>

#include <mspack.h>

/// The files that the unpacking library sees: it reads one block of memory, whatever the name, and writes
/// into another. It gets no more memory at once than honest files need.
struct MemorySystem : mspack_system
{
    explicit MemorySystem(QByteArray bytes);
    MemorySystem(const MemorySystem&) = delete;
    MemorySystem& operator=(const MemorySystem&) = delete;

    static constexpr const char* inputName = "in";
    static constexpr const char* outputName = "out";

    const QByteArray input;
    QByteArray output;
    qint64 outputLimit = 0;
};
