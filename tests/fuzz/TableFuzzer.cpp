// Any bytes as a table for dunmoor-table: CSV or EPW, in both unit systems. The first byte is the choice.

#include "core/StatePoint.h"
#include "table/TableError.h"
#include "table/Tables.h"
#include "tests/fuzz/Fuzz.h"

#include <cstdio>
#include <memory>
#include <string>
#include <vector>

namespace {

constexpr std::size_t Ample = 1 << 14; // in bytes; filling the program's 1 MiB would take most of the time
constexpr std::size_t Tight = 100;

using File = std::unique_ptr<std::FILE, int (*)(std::FILE*)>;

/// A file that reads from the text.
File fileOf(std::string_view text)
{
    return {fmemopen(const_cast<char*>(text.data()), text.size(), "rb"), std::fclose};
}

/// The memory of a file that is written.
struct Written
{
    char* bytes = nullptr;
    std::size_t size = 0;

    Written() = default;
    Written(const Written&) = delete;
    Written& operator=(const Written&) = delete;
    ~Written() { std::free(bytes); }
};

/// Each record's fields, up to a record that is too long.
std::vector<std::vector<std::string>> recordsOf(std::string_view table, std::size_t longest)
{
    std::vector<std::vector<std::string>> all;
    try {
        const File file = fileOf(table);
        Records records(file.get(), longest);
        while (records.next())
            all.emplace_back(records.fields().begin(), records.fields().end());
    } catch (const TableError&) {
    }
    return all;
}

/// A buffer that is refilled often gives the same records, until one doesn't fit.
void compareBuffers(std::string_view table)
{
    const auto ample = recordsOf(table, Ample);
    const auto tight = recordsOf(table, Tight);
    Require(tight.size() <= ample.size());
    for (std::size_t i = 0; i < tight.size(); ++i)
        Require(tight[i] == ample[i]);
    if (table.size() <= Tight)
        Require(tight.size() == ample.size());
}

/// The result has a header and a record for each row, all of one length.
void checkResult(std::string_view result, const RowCount& count)
{
    const auto records = recordsOf(result, 4 * Ample);
    Require(count.refused <= count.rows);
    Require(records.size() == static_cast<std::size_t>(count.rows) + 1);
    for (const auto& record : records)
        Require(record.size() == records.front().size());
}

void solve(std::string_view table, const TableOptions& options)
{
    UnitSystem = options.isMetric ? True16 : False16;
    numberLocale = {.decimalPoint = ".", .groupSeparator = ""};
    const File input = fileOf(table);
    Written written;
    RowCount count;
    {
        const File result(open_memstream(&written.bytes, &written.size), std::fclose);
        Records records(input.get(), Ample);
        Output output(result.get());
        count = options.isEpw ? SolveEpw(records, output, options) : SolveCsv(records, output, options);
        output.flush();
    }
    const bool hasQuotes =
        table.find('"') != std::string_view::npos; // one that isn't closed changes the rest
    if (!hasQuotes)
        checkResult({written.bytes, written.size}, count);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    FuzzInput input(data, size);
    const std::uint8_t choice = input.byte();
    TableOptions options;
    options.isMetric = (choice & 1U) != 0;
    options.isEpw = (choice & 2U) != 0;
    if ((choice & 4U) != 0)
        options.pressure = options.isMetric ? 95.0F : 13.7F;
    compareBuffers(input.rest());
    try {
        solve(input.rest(), options);
    } catch (const TableError&) {
    }
    return 0;
}
