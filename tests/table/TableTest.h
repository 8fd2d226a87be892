#pragma once

#include "core/NumberText.h"
#include "core/StatePoint.h"
#include "table/TableError.h"
#include "table/Tables.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

/// A temporary file with this content, at its start.
class TemporaryFile
{
public:
    explicit TemporaryFile(const std::string& content = "") : file_(std::tmpfile(), std::fclose)
    {
        std::fwrite(content.data(), 1, content.size(), file_.get());
        std::rewind(file_.get());
    }

    std::FILE* get() const { return file_.get(); }

    std::string content() const
    {
        std::rewind(file_.get());
        std::string text;
        for (int c = std::fgetc(file_.get()); c != EOF; c = std::fgetc(file_.get()))
            text += static_cast<char>(c);
        return text;
    }

private:
    std::unique_ptr<std::FILE, int (*)(std::FILE*)> file_;
};

/// Solves a table in memory, with the options of a command line.
struct Solved
{
    std::string text;
    RowCount count;

    explicit Solved(const std::string& table, const std::vector<std::string>& arguments = {})
    {
        const TableOptions options = ParseOptions(arguments);
        UnitSystem = options.isMetric ? True16 : False16;
        numberLocale = {.decimalPoint = ".", .groupSeparator = ""};
        const TemporaryFile input(table);
        const TemporaryFile result;
        Records records(input.get());
        Output output(result.get());
        count = options.isEpw ? SolveEpw(records, output, options) : SolveCsv(records, output, options);
        output.flush();
        text = result.content();
    }
};

/// The message of the TableError that the action throws; empty if it throws none.
template <typename Action>
std::string TableErrorOf(Action&& action)
{
    try {
        action();
    } catch (const TableError& error) {
        return error.what();
    }
    return "";
}
