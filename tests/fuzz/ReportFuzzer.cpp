// Any texts in the lines of a report: a label, a value and a unit, each up to a line feed.

#include "reports/ReportWriter.h"
#include "tests/fuzz/Fuzz.h"

#include <algorithm>
#include <string>

namespace {

constexpr std::size_t Zone = 14;

/// The number of characters in UTF-8; each byte of a damaged one that could start a character counts.
std::size_t columnsOf(std::string_view text)
{
    std::size_t count = 0;
    for (const char byte : text)
        count += (byte & '\xC0') == '\x80' ? 0 : 1;
    return count;
}

/// Takes the expected text and the blanks up to the next print zone from the front of a line.
class LineReader
{
public:
    explicit LineReader(std::string_view line) : unread(line) {}

    void take(std::string_view text)
    {
        Require(unread.starts_with(text));
        unread.remove_prefix(text.size());
        taken += columnsOf(text);
    }

    void takeBlanks()
    {
        const std::size_t blanks = Zone - taken % Zone;
        take(std::string(blanks, ' '));
    }

    bool isAtEnd() const { return unread.empty(); }

private:
    std::string_view unread;
    std::size_t taken = 0;
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    FuzzInput input(data, size);
    const std::string_view label = input.until('\n');
    const std::string_view value = input.until('\n');
    const std::string_view unit = input.rest();
    std::string line;
    ReportWriter writer([&line](const std::string& written) { line = written; });

    writer.labelValueAndUnit(label, value, unit);
    LineReader reader(line);
    reader.take(" ");
    reader.take(label);
    reader.takeBlanks();
    reader.take(value);
    reader.takeBlanks();
    reader.take(unit);
    Require(reader.isAtEnd());

    writer.valueAndUnit(value, unit);
    LineReader shortReader(line);
    shortReader.take(" ");
    shortReader.take(value);
    shortReader.takeBlanks();
    shortReader.take(unit);
    Require(shortReader.isAtEnd());

    writer.column4Line(label);
    Require(line == "   " + std::string(label));
    return 0;
}
