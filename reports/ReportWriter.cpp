#include "reports/ReportWriter.h"

#include <algorithm>

namespace {

constexpr std::size_t ZoneWidth = 14;
constexpr std::size_t DateColumn = 40;
constexpr std::size_t RuleLength = 37;
constexpr std::size_t TextColumn = 2;
constexpr std::size_t FarTextColumn = 4;

bool startsCharacter(char byte) { return (static_cast<unsigned char>(byte) & 0xC0U) != 0x80U; }

/// A line, built from left to right. Each character counts as one column, regardless of its length in UTF-8.
class Line
{
public:
    explicit Line(std::size_t firstColumn) : written(firstColumn - 1, ' '), nextColumn(firstColumn) {}

    Line& put(std::string_view text)
    {
        written += text;
        nextColumn += static_cast<std::size_t>(std::count_if(text.begin(), text.end(), startsCharacter));
        return *this;
    }

    /// Pads to the first print zone after the current column.
    Line& PrintZone()
    {
        const std::size_t zonesBegun = (nextColumn - 1) / ZoneWidth + 1;
        return put(std::string(zonesBegun * ZoneWidth + 1 - nextColumn, ' '));
    }

    const std::string& text() const { return written; }

private:
    std::string written;
    std::size_t nextColumn;
};

} // namespace

void ReportWriter::blankLines(int count)
{
    for (int i = 0; i < count; ++i)
        write({});
}

void ReportWriter::dateLine() { write(Line(DateColumn).put(today()).text()); }
void ReportWriter::heading(std::string_view text) { write(Line(TextColumn).put(text).text()); }
void ReportWriter::rule() { heading(std::string(RuleLength, '-')); }

void ReportWriter::dateAmidBlankLines()
{
    blankLines(2);
    dateLine();
    blankLines(2);
}

void ReportWriter::underlinedHeading(std::string_view text)
{
    heading(text);
    rule();
}

void ReportWriter::labelAndValue(std::string_view label, std::string_view value)
{
    write(Line(TextColumn).put(label).PrintZone().put(value).text());
}

void ReportWriter::labelValueAndUnit(std::string_view label, std::string_view value, std::string_view unit)
{
    write(Line(TextColumn).put(label).PrintZone().put(value).PrintZone().put(unit).text());
}

void ReportWriter::valueAndUnit(std::string_view value, std::string_view unit)
{
    write(Line(TextColumn).put(value).PrintZone().put(unit).text());
}

void ReportWriter::column4Line(std::string_view text) { write(Line(FarTextColumn).put(text).text()); }
void ReportWriter::column4DateLine() { column4Line(today()); }

void ReportWriter::emptyColumn4Lines(int count)
{
    for (int i = 0; i < count; ++i)
        column4Line({});
}
