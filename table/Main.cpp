// dunmoor-table: reads a table of moist air states and writes it with all properties.

#include "core/NumberText.h"
#include "core/StatePoint.h"
#include "table/TableError.h"
#include "table/Tables.h"

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <memory>

namespace {

constexpr int StatusError = 2;

using File = std::unique_ptr<std::FILE, int (*)(std::FILE*)>;

File open(const std::string& name)
{
    if (name.empty() || name == "-")
        return {stdin, [](std::FILE*) { return 0; }};
    File file(std::fopen(name.c_str(), "rb"), std::fclose);
    if (!file)
        throw TableError("can't open " + name + ": " + std::strerror(errno));
    return file;
}

void solve(const TableOptions& options)
{
    UnitSystem = options.isMetric ? True16 : False16;
    numberLocale = {.decimalPoint = ".", .groupSeparator = ""};
    const File file = open(options.file);
    Records records(file.get());
    Output output(stdout);
    const RowCount count =
        options.isEpw ? SolveEpw(records, output, options) : SolveCsv(records, output, options);
    output.flush();
    if (count.refused > 0)
        std::fprintf(stderr, "dunmoor-table: %ld of %ld rows refused, see the column note\n", count.refused,
                     count.rows);
}

} // namespace

int main(int argc, char** argv)
{
    try {
        const TableOptions options = ParseOptions({argv + 1, argv + argc});
        if (options.wantsHelp)
            std::fputs(UsageText, stdout);
        else if (options.wantsVersion)
            std::puts("dunmoor-table " DUNMOOR_VERSION);
        else
            solve(options);
    } catch (const std::exception& error) {
        std::fprintf(stderr, "dunmoor-table: %s\n", error.what());
        return StatusError;
    }
    return 0;
}
