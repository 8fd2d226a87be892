// topic-names HELP-FILE STRINGS PREFIX: takes a prefix off the names in a compiled help file's table of
// strings.
//
// The compiler writes the files of the numbered topics with the path of the project's folder, and a reader
// that takes that literally finds none of them. STRINGS is the table as extracted from the file; it stands
// there compressed among everything else, so the mended one is put behind the end of the file, outside the
// compressed part, and the directory is made to point there.

#include <cstdint>
#include <cstdio>
#include <exception>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <string>

namespace {

constexpr std::size_t directoryOffsetAt = 0x48; // in the file's header, as are the next three
constexpr std::size_t directoryLengthAt = 0x50;
constexpr std::size_t contentOffsetAt = 0x58;
constexpr std::size_t fileSizeAt = 0x68;
constexpr char uncompressed = 0; // the section of a directory entry

std::string read(const char* path)
{
    std::ifstream file(path, std::ios::binary);
    if (!file)
        throw std::runtime_error(std::string("can't read ") + path);
    return {std::istreambuf_iterator<char>(file), {}};
}

/// Eight bytes, the lowest first.
std::uint64_t number(const std::string& bytes, std::size_t at)
{
    std::uint64_t value = 0;
    for (std::size_t i = 8; i-- > 0;)
        value = value << 8 | static_cast<unsigned char>(bytes.at(at + i));
    return value;
}

void setNumber(std::string& bytes, std::size_t at, std::uint64_t value)
{
    for (std::size_t i = 0; i < 8; ++i, value >>= 8)
        bytes.at(at + i) = static_cast<char>(value & 0xFF);
}

/// Moves the names that begin with the prefix to where the prefix began; every string keeps its offset.
std::string withoutPrefix(std::string strings, const std::string& prefix)
{
    for (std::size_t at = strings.find(prefix); at != std::string::npos; at = strings.find(prefix, at + 1)) {
        const std::size_t end = strings.find('\0', at);
        const std::string name = strings.substr(at + prefix.size(), end - at - prefix.size());
        strings.replace(at, end - at, name + std::string(prefix.size(), '\0'));
    }
    return strings;
}

/// Writes an offset over another one: seven bits a byte, the highest first, all but the last byte marked.
void overwriteOffset(std::string& file, std::size_t at, std::uint64_t offset)
{
    std::size_t length = 1;
    while ((file.at(at + length - 1) & 0x80) != 0)
        ++length;
    for (std::size_t i = length; i-- > 0; offset >>= 7)
        file.at(at + i) = static_cast<char>((offset & 0x7F) | (i + 1 == length ? 0U : 0x80U));
    if (offset != 0)
        throw std::runtime_error("the file has become too large for its directory");
}

void putBehind(std::string& file, const std::string& strings)
{
    const std::string entry = "\x09/#STRINGS";
    const std::size_t directory = number(file, directoryOffsetAt);
    const std::size_t at = file.find(entry, directory);
    if (at == std::string::npos || at >= directory + number(file, directoryLengthAt))
        throw std::runtime_error("the help file has no table of strings");
    const std::size_t section = at + entry.size();
    file.at(section) = uncompressed;
    overwriteOffset(file, section + 1, file.size() - number(file, contentOffsetAt));
    file += strings;
    setNumber(file, fileSizeAt, file.size());
}

void mend(const char* helpFile, const char* stringsFile, const std::string& prefix)
{
    const std::string before = read(stringsFile);
    const std::string strings = withoutPrefix(before, prefix);
    if (strings == before)
        throw std::runtime_error("no name begins with " + prefix);
    std::string file = read(helpFile);
    putBehind(file, strings);
    std::ofstream out(helpFile, std::ios::binary);
    if (!out.write(file.data(), static_cast<std::streamsize>(file.size())).flush())
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
        mend(argv[1], argv[2], argv[3]);
    } catch (const std::exception& failure) {
        std::fprintf(stderr, "%s: %s\n", *argv, failure.what());
        return 1;
    }
    return 0;
}
