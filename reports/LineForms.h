#pragma once

#include <cstddef>
#include <string>
#include <string_view>

/// One line of a report, put together from left to right. The first column is 1; a character takes one
/// column, however many bytes it has in UTF-8.
class ReportLine
{
public:
    /// Pads with blanks up to a column.
    ReportLine& toColumn(std::size_t column);

    /// Pads with blanks to the first print zone beyond the current column. The zones begin at the columns 1,
    /// 15, 29, 43, 57 and on. A zone that nothing was put into is passed over like a filled one.
    ReportLine& PrintZone();

    ReportLine& put(std::string_view text);

    const std::string& text() const { return text_; }

private:
    std::string text_;
    std::size_t column_ = 1;
};

// The forms that every report is made of: each returns a line without its line end.

/// The date, from column 40 on.
std::string DateLine(std::string_view date);

/// A text from column 2 on.
std::string Heading(std::string_view text);

/// 37 hyphens under a heading.
std::string Rule();

/// A label from column 2 on, and in the next print zones what belongs to it. Labels bring their " = " and
/// units their leading blank along.
std::string LabelAndValue(std::string_view label, std::string_view value);
std::string LabelValueAndUnit(std::string_view label, std::string_view value, std::string_view unit);

/// A value from column 2 on and its unit in the next print zone.
std::string ValueAndUnit(std::string_view value, std::string_view unit);

/// A value from column 4 on. The padding of an empty one stays as trailing blanks.
std::string Column4Line(std::string_view value = {});
