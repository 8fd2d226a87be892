#include "reports/LineForms.h"

#include <algorithm>

namespace {

constexpr std::size_t ZoneWidth = 14;
constexpr std::size_t DateIndent = 39;
constexpr std::size_t RuleLength = 37;
constexpr std::size_t TextColumn = 2;
constexpr std::size_t FarTextColumn = 4;

bool StartsCharacter(char byte) { return (static_cast<unsigned char>(byte) & 0xC0U) != 0x80U; }

std::size_t CharactersIn(std::string_view text)
{
    return static_cast<std::size_t>(std::count_if(text.begin(), text.end(), StartsCharacter));
}

} // namespace

ReportLine& ReportLine::toColumn(std::size_t column)
{
    if (column > column_)
        put(std::string(column - column_, ' '));
    return *this;
}

ReportLine& ReportLine::PrintZone()
{
    const std::size_t zonesBegun = (column_ - 1) / ZoneWidth + 1;
    return toColumn(zonesBegun * ZoneWidth + 1);
}

ReportLine& ReportLine::put(std::string_view text)
{
    text_ += text;
    column_ += CharactersIn(text);
    return *this;
}

std::string DateLine(std::string_view date)
{
    return ReportLine().put(std::string(DateIndent, ' ')).put(date).text();
}

std::string Heading(std::string_view text) { return ReportLine().toColumn(TextColumn).put(text).text(); }

std::string Rule() { return Heading(std::string(RuleLength, '-')); }

std::string LabelAndValue(std::string_view label, std::string_view value)
{
    return ReportLine().toColumn(TextColumn).put(label).PrintZone().put(value).text();
}

std::string LabelValueAndUnit(std::string_view label, std::string_view value, std::string_view unit)
{
    return ReportLine().toColumn(TextColumn).put(label).PrintZone().put(value).PrintZone().put(unit).text();
}

std::string ValueAndUnit(std::string_view value, std::string_view unit)
{
    return ReportLine().toColumn(TextColumn).put(value).PrintZone().put(unit).text();
}

std::string Column4Line(std::string_view value)
{
    return ReportLine().toColumn(FarTextColumn).put(value).text();
}
