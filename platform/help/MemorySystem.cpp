#include "platform/help/MemorySystem.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <new>
#include <utility>

namespace {

constexpr std::size_t largestBlock = 8 << 20; // the largest window of the packing is 2 MiB

/// A file that the library has open.
struct MemoryFile : mspack_file
{
    MemoryFile(MemorySystem& owner, bool forWriting) : mspack_file(), memory(owner), writes(forWriting) {}

    MemorySystem& memory;
    const bool writes;
    off_t position = 0;
};

MemoryFile& asMemoryFile(mspack_file* file) { return *static_cast<MemoryFile*>(file); }

mspack_file* openFile(mspack_system* self, const char* /*name*/, int mode)
{
    auto* const memory = static_cast<MemorySystem*>(self);
    return new (std::nothrow) MemoryFile(*memory, mode == MSPACK_SYS_OPEN_WRITE);
}

void closeFile(mspack_file* file) { delete &asMemoryFile(file); }

int readFile(mspack_file* file, void* buffer, int bytes)
{
    MemoryFile& from = asMemoryFile(file);
    if (from.writes || bytes < 0)
        return -1;
    const qint64 left = from.memory.input.size() - from.position;
    const auto count = static_cast<std::size_t>(std::min<qint64>(bytes, left));
    std::memcpy(buffer, from.memory.input.constData() + from.position, count);
    from.position += static_cast<off_t>(count);
    return static_cast<int>(count);
}

int writeFile(mspack_file* file, void* buffer, int bytes)
{
    const MemoryFile& to = asMemoryFile(file);
    QByteArray& output = to.memory.output;
    if (!to.writes || bytes < 0 || output.size() + bytes > to.memory.outputLimit)
        return -1;
    output.append(static_cast<const char*>(buffer), bytes);
    return bytes;
}

int seekFile(mspack_file* file, off_t offset, int mode)
{
    MemoryFile& in = asMemoryFile(file);
    const off_t end = in.memory.input.size();
    const off_t base = mode == MSPACK_SYS_SEEK_CUR ? in.position : mode == MSPACK_SYS_SEEK_END ? end : 0;
    if (offset < -base || offset > end - base)
        return -1;
    in.position = base + offset;
    return 0;
}

off_t tellFile(mspack_file* file) { return asMemoryFile(file).position; }

void ignoreMessage(mspack_file* /*file*/, const char* /*format*/, ...) {}

void* allocate(mspack_system* /*self*/, std::size_t bytes)
{
    return bytes > largestBlock ? nullptr : std::calloc(1, std::max<std::size_t>(bytes, 1));
}

void release(void* block) { std::free(block); }

void copyBlock(void* from, void* to, std::size_t bytes) { std::memcpy(to, from, bytes); }

} // namespace

MemorySystem::MemorySystem(QByteArray bytes) : mspack_system(), input(std::move(bytes))
{
    mspack_system::open = openFile;
    mspack_system::close = closeFile;
    mspack_system::read = readFile;
    mspack_system::write = writeFile;
    mspack_system::seek = seekFile;
    mspack_system::tell = tellFile;
    mspack_system::message = ignoreMessage;
    mspack_system::alloc = allocate;
    mspack_system::free = release;
    mspack_system::copy = copyBlock;
}
