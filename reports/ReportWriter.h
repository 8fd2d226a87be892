#pragma once

#include "platform/Desktop.h"

#include <functional>
#include <string>
#include <string_view>

/// Writes a report line by line, in the line formats that all reports share. Columns count from 1. The print
/// zones begin at columns 1, 15, 29, 43, 57 and so on, every 14 columns. Labels include their " = ", units
/// their leading blank.
class ReportWriter
{
public:
    /// Receives a finished line, without its line end.
    using TakeLine = std::function<void(const std::string& line)>;
    using ReadDate = std::string (*)();

    explicit ReportWriter(TakeLine takeLine, ReadDate readDate = ShortDate)
        : write(std::move(takeLine)), today(readDate)
    {}

    void blankLines(int count);
    /// Today's date at column 40. Reads the date anew for each line.
    void dateLine();
    /// The date between two blank lines above and two below.
    void dateAmidBlankLines();
    /// Text at column 2.
    void heading(std::string_view text);
    /// 37 hyphens, for example under a heading.
    void rule();
    void underlinedHeading(std::string_view text);
    /// A label at column 2, then the value and the unit, each in the next print zone. The zone of an empty
    /// value stays empty.
    void labelAndValue(std::string_view label, std::string_view value);
    void labelValueAndUnit(std::string_view label, std::string_view value, std::string_view unit);
    /// A value at column 2, its unit in the next print zone.
    void valueAndUnit(std::string_view value, std::string_view unit);
    /// Text at column 4. Empty text leaves its padding as trailing blanks.
    void column4Line(std::string_view text);
    void column4DateLine();
    void emptyColumn4Lines(int count);

private:
    TakeLine write;
    ReadDate today;
};
