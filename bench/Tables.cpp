// bench_table: the processor time of dunmoor-table for a million rows and for a weather year, beside reading
// and writing alone.

#include "table/Tables.h"
#include "bench/Quantiles.h"
#include "core/NumberText.h"
#include "core/Solvers.h"
#include "table/Properties.h"

#include <cstdio>
#include <ctime>
#include <memory>
#include <random>
#include <string>

namespace {

constexpr int Rows = 1000000;
constexpr int Hours = 8760;
constexpr int Rounds = 9;

using File = std::unique_ptr<std::FILE, int (*)(std::FILE*)>;

File fileOf(const std::string& text)
{
    File file(std::tmpfile(), std::fclose);
    std::fwrite(text.data(), 1, text.size(), file.get());
    return file;
}

std::string table()
{
    std::mt19937 random(1);
    std::string text = "hour,tdb,rh\n";
    for (int i = 0; i < Rows; ++i)
        text += std::to_string(i) + "," + std::to_string(35 + random() % 80) + "." +
                std::to_string(random() % 10) + "," + std::to_string(5 + random() % 90) + "\n";
    return text;
}

std::string weatherYear()
{
    std::mt19937 random(1);
    std::string text = "LOCATION,Nowhere\n";
    for (int i = 0; i < 7; ++i)
        text += "HEADER\n";
    for (int i = 0; i < Hours; ++i) {
        const int tdb = static_cast<int>(random() % 40) - 5;
        text += "2026,1,1,1,60,?9?9?9?9E0," + std::to_string(tdb) + ".5," + std::to_string(tdb - 4) +
                ".2,70,100500,0,0,300,0,0,0,0,0,0,0,180,3.2,5,5,20.0,77777,9,999999999,120,0.0700,0,88\n";
    }
    return text;
}

void readAlone(Records& records, Output&)
{
    std::size_t fields = 0;
    while (records.next())
        fields += records.fields().size();
    if (fields == 0)
        std::puts("nothing was read");
}

/// Writes one state again and again.
void writeAlone(Records& records, Output& output)
{
    records.next();
    StatePoint.Tdb = 71.3F;
    StatePoint.P = 14.696F;
    StatePoint.RH = 47.0F;
    SolveFromRH();
    for (int i = 0; i < Rows; ++i) {
        output.add(records.text());
        AddProperties(output, Item::RelativeHumidity, true, "");
        output.endRow();
    }
}

/// Milliseconds of processor time. The output goes to /dev/null.
template <typename Work>
void measure(const char* title, const File& input, Work work)
{
    const File null(std::fopen("/dev/null", "w"), std::fclose);
    std::vector<double> milliseconds;
    for (int round = 0; round < Rounds; ++round) {
        std::rewind(input.get());
        const std::clock_t start = std::clock();
        Records records(input.get());
        Output output(null.get());
        work(records, output);
        output.flush();
        milliseconds.push_back(static_cast<double>(std::clock() - start) * 1e3 / CLOCKS_PER_SEC);
    }
    std::printf("  %-24s %8.1f ms  (%.1f - %.1f)\n", title, Median(milliseconds),
                Quantile(milliseconds, 0.25), Quantile(milliseconds, 0.75));
}

} // namespace

int main()
{
    numberLocale = {.decimalPoint = ".", .groupSeparator = ""};
    const File rows = fileOf(table());
    std::printf("A million rows, processor time: median (quartiles) of %d rounds\n", Rounds);
    measure("reading alone", rows, readAlone);
    measure("writing alone", rows, writeAlone);
    measure("the whole", rows, [](Records& in, Output& out) { SolveCsv(in, out, {}); });

    UnitSystem = True16;
    const File year = fileOf(weatherYear());
    std::puts("A weather year");
    measure("the whole", year, [](Records& in, Output& out) { SolveEpw(in, out, {}); });
}
