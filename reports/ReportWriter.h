#pragma once

#include "platform/ShortDate.h"

#include <functional>
#include <string>
#include <string_view>

/// Writes a report line by line, in the forms that all reports consist of. The first column is 1. The print
/// zones begin at the columns 1, 15, 29, 43, 57 and on: every 14 columns. Labels bring their " = " along,
/// units their leading blank.
class ReportWriter
{
public:
    /// Takes a finished line, without its line end.
    using TakeLine = std::function<void(const std::string& line)>;
    using ReadDate = std::string (*)();

    explicit ReportWriter(TakeLine takeLine, ReadDate readDate = ShortDate)
        : write(std::move(takeLine)), today(readDate)
    {}

    void blankLines(int count);
    /// Today's date from column 40 on, read again for each such line.
    void dateLine();
    /// A text from column 2 on.
    void heading(std::string_view text);
    /// 37 hyphens under a heading.
    void rule();
    /// A label from column 2 on, the value and the unit each in the next print zone. The zone of an empty
    /// value stays empty.
    void labelAndValue(std::string_view label, std::string_view value);
    void labelValueAndUnit(std::string_view label, std::string_view value, std::string_view unit);
    /// A value from column 2 on, its unit in the next print zone.
    void valueAndUnit(std::string_view value, std::string_view unit);
    /// A text from column 4 on. An empty one leaves its padding as trailing blanks.
    void column4Line(std::string_view text);
    void column4DateLine();
    void emptyColumn4Lines(int count);

private:
    TakeLine write;
    ReadDate today;
};

/// A report, as a frame asks for it.
using WriteReport = std::function<void(ReportWriter& report)>;
