#pragma once

#include "platform/ShortDate.h"

#include <functional>
#include <string>
#include <string_view>

/// Writes a report line by line, in the forms that reports are made of (see LineForms.h). A line goes out
/// whole or, where its values fail, not at all.
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
    /// Today, read anew for each such line.
    void dateLine();
    void heading(std::string_view text);
    void rule();
    void labelAndValue(std::string_view label, std::string_view value);
    void labelValueAndUnit(std::string_view label, std::string_view value, std::string_view unit);
    void valueAndUnit(std::string_view value, std::string_view unit);
    void column4Line(std::string_view value);
    void column4DateLine();
    void emptyColumn4Lines(int count);

private:
    TakeLine write;
    ReadDate today;
};

/// A report, as a frame asks for it.
using WriteReport = std::function<void(ReportWriter& report)>;
