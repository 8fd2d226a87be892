#include "table/Output.h"

#include "table/TableError.h"

#include <array>
#include <cerrno>
#include <charconv>
#include <cstring>

void Output::addNumber(const TaggedNumber& number)
{
    std::array<char, 32> digits{};
    char* const first = digits.data();
    char* const last = first + digits.size();
    const auto result = number.kind() == NumberKind::Single ? std::to_chars(first, last, number.asSingle())
                                                            : std::to_chars(first, last, number.asDouble());
    buffer.append(first, result.ptr);
}

void Output::addQuoted(std::string_view text)
{
    if (text.find_first_of(",\"\r\n") == std::string_view::npos) {
        buffer += text;
        return;
    }
    buffer += '"';
    for (const char c : text)
        buffer.append(c == '"' ? 2 : 1, c);
    buffer += '"';
}

void Output::endRow(std::string_view lineEnd)
{
    buffer += lineEnd;
    if (buffer.size() >= Enough)
        flush();
}

void Output::flush()
{
    const bool isWritten = std::fwrite(buffer.data(), 1, buffer.size(), target) == buffer.size();
    if (!isWritten || std::fflush(target) != 0)
        throw TableError(std::string("can't write: ") + std::strerror(errno));
    buffer.clear();
}
