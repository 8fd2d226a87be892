#include "table/Records.h"

#include "table/TableError.h"

#include <cerrno>
#include <cstring>
#include <string>

Records::Records(std::FILE* file, std::size_t longest) : source(file), buffer(longest + 2)
{
    skipByteOrderMark();
}

/// The next byte, or EndOfFile.
int Records::peek()
{
    if (position == bufferEnd && !refill())
        return EndOfFile;
    return static_cast<unsigned char>(buffer[position]);
}

/// Moves the current record to the start of the buffer and reads on behind it.
bool Records::refill()
{
    if (bufferEnd - recordBegin >= buffer.size())
        throw TableError("line " + std::to_string(currentLine) +
                         ": a row of more than 1 MiB (is a quote not closed?)");
    std::memmove(buffer.data(), buffer.data() + recordBegin, bufferEnd - recordBegin);
    position -= recordBegin;
    bufferEnd -= recordBegin;
    recordBegin = 0;
    const std::size_t count = std::fread(buffer.data() + bufferEnd, 1, buffer.size() - bufferEnd, source);
    if (count == 0 && std::ferror(source) != 0)
        throw TableError(std::string("can't read: ") + std::strerror(errno));
    bufferEnd += count;
    return count > 0;
}

void Records::skipByteOrderMark()
{
    refill();
    if (std::string_view(buffer.data(), bufferEnd).starts_with("\xEF\xBB\xBF"))
        recordBegin = position = 3;
}

bool Records::next()
{
    recordBegin = position;
    while (peek() == '\n' || peek() == '\r') {
        nextLine += peek() == '\n' ? 1 : 0;
        recordBegin = ++position;
    }
    if (peek() == EndOfFile)
        return false;
    currentLine = nextLine;
    spans.clear();
    scan();

    const char* const start = buffer.data() + recordBegin;
    currentFields.clear();
    for (const auto& [first, last] : spans)
        currentFields.emplace_back(start + first, last - first);
    currentText = {start, spans.back().second};
    return true;
}

/// Scans one record up to and including its line end.
void Records::scan()
{
    fieldBegin = 0;
    while (true) {
        if (position - recordBegin == fieldBegin && peek() == '"')
            scanQuoted();
        const int byte = peek();
        if (byte == EndOfFile || byte == '\n')
            break;
        if (byte == ',') {
            endField();
            fieldBegin = position - recordBegin + 1;
        }
        ++position;
    }
    endField();
    auto& last = spans.back().second;
    const bool hasReturn = last > fieldBegin && buffer[recordBegin + last - 1] == '\r';
    last -= hasReturn ? 1 : 0;
    currentLineEnd = hasReturn ? "\r\n" : "\n";
    if (position < bufferEnd) {
        ++position;
        ++nextLine;
    }
}

/// Scans a quoted field up to its closing quote. A doubled quote closes the field and opens it again.
void Records::scanQuoted()
{
    do {
        ++position; // the opening quote
        while (peek() != '"') {
            if (peek() == EndOfFile)
                return;
            nextLine += peek() == '\n' ? 1 : 0;
            ++position;
        }
        ++position; // the closing quote
    } while (peek() == '"');
}

void Records::endField() { spans.emplace_back(fieldBegin, position - recordBegin); }
