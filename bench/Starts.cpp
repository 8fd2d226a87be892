// bench_starts: the time from process start to the first frame, and the memory then in use, compared with an
// empty toolkit window and with a window that has the same controls but no program behind them. The programs
// are started in turn, so that other load on the machine affects all of them. This driver links no toolkit:
// it would share the libraries' pages with the measured programs and make them look smaller.

#include "bench/Quantiles.h"
#include "bench/Scratch.h"
#include "bench/StartProbe.h"

#include <array>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <stdexcept>
#include <string>

namespace {

constexpr int rounds = 41; // the first is discarded, because it reads the files from disk

struct Measured
{
    const char* title;
    const char* executable;
    std::vector<double> milliseconds;
    std::vector<double> processorMilliseconds;
    std::vector<double> mebibytes;
};

std::string outputOf(const std::string& command)
{
    FILE* const pipe = popen(command.c_str(), "r");
    if (pipe == nullptr)
        throw std::runtime_error("cannot start " + command);
    std::string output;
    char part[256];
    while (std::fgets(part, sizeof part, pipe) != nullptr)
        output += part;
    if (pclose(pipe) != 0)
        throw std::runtime_error(command + " failed");
    return output;
}

void start(Measured& program, const std::string& folder, bool isKept)
{
    const std::string path = "exec '" + folder + "/" + program.executable + "'";
    const auto now = std::chrono::steady_clock::now().time_since_epoch();
    setenv(startedAtVariable, std::to_string(std::chrono::nanoseconds(now).count()).c_str(), 1);
    const std::string output = outputOf(path);
    long long nanoseconds = 0;
    long long processorNanoseconds = 0;
    long long kibibytes = 0;
    if (std::sscanf(output.c_str(), "%lld %lld %lld", &nanoseconds, &processorNanoseconds, &kibibytes) != 3 ||
        kibibytes <= 0)
        throw std::runtime_error(path + " measured nothing: " + output);
    if (isKept) {
        program.milliseconds.push_back(static_cast<double>(nanoseconds) / 1e6);
        program.processorMilliseconds.push_back(static_cast<double>(processorNanoseconds) / 1e6);
        program.mebibytes.push_back(static_cast<double>(kibibytes) / 1024);
    }
}

using Figure = std::vector<double> Measured::*;

/// Prints each program's quartiles, and its median as a multiple of the first program's.
void printTable(const char* what, const std::array<Measured, 3>& programs, Figure values)
{
    std::printf("%-19s %9s %9s %9s %9s\n", what, "quartile", "median", "quartile", "multiple");
    const double least = Median(programs.front().*values);
    for (const Measured& program : programs) {
        const std::vector<double>& those = program.*values;
        std::printf("  %-17s %9.2f %9.2f %9.2f %9.2f\n", program.title, Quantile(those, 0.25), Median(those),
                    Quantile(those, 0.75), Median(those) / least);
    }
}

void measureStarts()
{
    const ScratchSettings settings;
    UseOffscreenWithoutDisplay();
    const std::string folder = std::filesystem::canonical("/proc/self/exe").parent_path();
    std::array<Measured, 3> programs{{{"empty window", "start_empty", {}, {}, {}},
                                      {"controls alone", "start_controls", {}, {}, {}},
                                      {"Dunmoor", "start_dunmoor", {}, {}, {}}}};
    for (int round = 0; round < rounds; ++round) {
        for (Measured& program : programs)
            start(program, folder, round > 0);
    }
    std::printf("Starts: %d of each, in turn, on %s\n", rounds - 1, DisplayInUse());
    printTable("first picture, ms", programs, &Measured::milliseconds);
    printTable("processor time, ms", programs, &Measured::processorMilliseconds);
    printTable("memory (PSS), MiB", programs, &Measured::mebibytes);
}

} // namespace

int main()
{
    try {
        measureStarts();
    } catch (const std::exception& failure) {
        std::fprintf(stderr, "bench_starts: %s\n", failure.what());
        return EXIT_FAILURE;
    }
}
