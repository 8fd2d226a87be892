// The program from outside: exit statuses, messages, and the examples of its manual page.

#include "tests/table/TableTest.h"

#include <filesystem>
#include <fstream>
#include <sstream>
#include <sys/wait.h>

namespace {

namespace fs = std::filesystem;

std::string ContentOf(const fs::path& path)
{
    std::ostringstream text;
    text << std::ifstream(path, std::ios::binary).rdbuf();
    return text.str();
}

/// Runs shell commands in a folder of their own, with the program in the path.
class TableProgram : public testing::Test
{
protected:
    TableProgram() { fs::create_directory(folder); }
    ~TableProgram() override { fs::remove_all(folder); }

    void write(const std::string& name, const std::string& content) const
    {
        std::ofstream(folder / name, std::ios::binary) << content;
    }

    /// @return the exit status; out and err are filled
    int run(const std::string& commands)
    {
        write("script",
              "PATH='" + fs::path(DUNMOOR_TABLE).parent_path().string() + "':\"$PATH\"\n" + commands);
        const std::string call = "cd '" + folder.string() + "' && sh -e script > out 2> err";
        const int status = std::system(call.c_str());
        out = ContentOf(folder / "out");
        err = ContentOf(folder / "err");
        return WEXITSTATUS(status);
    }

    const fs::path folder = fs::temp_directory_path() / ("dunmoor-table-test-" + std::to_string(getpid()));
    std::string out;
    std::string err;
};

/// A year of hours, written from the description of the format.
std::string WeatherYear()
{
    std::string text = "LOCATION,Nowhere,-,-,made by hand,000000,50.0,10.0,1.0,100.0\n";
    for (const char* line : {"DESIGN CONDITIONS,0", "TYPICAL/EXTREME PERIODS,0", "GROUND TEMPERATURES,0",
                             "HOLIDAYS/DAYLIGHT SAVINGS,No,0,0,0", "COMMENTS 1,", "COMMENTS 2,",
                             "DATA PERIODS,1,1,Data,Sunday,1/1,12/31"})
        text += std::string(line) + "\n";
    for (int hour = 0; hour < 8760; ++hour) {
        const std::string tdb = hour == 5000 ? "99.9" : std::to_string(hour % 50 - 10);
        text += "2026," + std::to_string(hour / 744 + 1) + "," + std::to_string(hour % 744 / 24 + 1) + "," +
                std::to_string(hour % 24 + 1) + ",60,?9?9?9?9E0," + tdb + "," +
                std::to_string(hour % 50 - 14) + ",50,100000,0,0,300\n";
    }
    return text;
}

std::string LargeTable()
{
    std::string text = "id,tdb,rh\n";
    for (int i = 0; i < 1200000; ++i)
        text +=
            std::to_string(i) + "," + std::to_string(35 + i % 80) + "," + std::to_string(5 + i % 90) + "\n";
    return text;
}

/// The examples of the manual page, each between .EX and .EE.
std::vector<std::string> Examples()
{
    std::ifstream page(DUNMOOR_TABLE_MANUAL);
    std::vector<std::string> examples;
    bool isExample = false;
    for (std::string line; std::getline(page, line);) {
        if (line == ".EX")
            examples.emplace_back();
        else if (isExample && line != ".EE")
            examples.back() += line + "\n";
        isExample = line == ".EX" || (isExample && line != ".EE");
    }
    for (std::string& example : examples) {
        for (std::size_t at = example.find("\\-"); at != std::string::npos; at = example.find("\\-", at))
            example.erase(at, 1);
    }
    return examples;
}

} // namespace

TEST_F(TableProgram, EndsWithStatus0AndTheCountOfRefusedRows)
{
    write("table.csv", "tdb,rh\n70,50\nx,50\n200,50\n");
    EXPECT_EQ(run("dunmoor-table table.csv"), 0);
    EXPECT_EQ(err, "dunmoor-table: 2 of 3 rows refused, see the column note\n");
    EXPECT_EQ(run("printf 'tdb,rh\\n70,50\\n' | dunmoor-table"), 0);
    EXPECT_EQ(err, "");
    EXPECT_NE(out.find("70,50,58.447365,"), std::string::npos);
}

TEST_F(TableProgram, EndsWithStatus2AndOneLine)
{
    EXPECT_EQ(run("dunmoor-table missing.csv"), 2);
    EXPECT_EQ(err, "dunmoor-table: can't open missing.csv: No such file or directory\n");
    EXPECT_EQ(run("dunmoor-table ."), 2);
    EXPECT_EQ(err, "dunmoor-table: can't read: Is a directory\n");
    EXPECT_EQ(run("dunmoor-table --fast"), 2);
    EXPECT_EQ(err, "dunmoor-table: unknown option --fast\n");
    EXPECT_EQ(run("echo tdb,p | dunmoor-table"), 2);
    EXPECT_EQ(err, "dunmoor-table: the header needs exactly one of the columns twb, td, rh, w, grains\n");
    EXPECT_EQ(run("echo tdb,rh | dunmoor-table > /dev/full"), 2);
    EXPECT_EQ(err, "dunmoor-table: can't write: No space left on device\n");
}

TEST_F(TableProgram, ShowsItsOptionsAndItsVersion)
{
    EXPECT_EQ(run("dunmoor-table --help"), 0);
    EXPECT_EQ(out, UsageText);
    EXPECT_EQ(run("dunmoor-table --version"), 0);
    EXPECT_EQ(out, "dunmoor-table " DUNMOOR_VERSION "\n");
}

TEST_F(TableProgram, ReadsAndWritesPointsInEveryLocale)
{
    EXPECT_EQ(run("printf 'tdb,rh\\n70.5,50.5\\n' > t.csv; dunmoor-table t.csv > c.csv;"
                  "LC_ALL=de_DE.UTF-8 dunmoor-table t.csv > de.csv; cmp c.csv de.csv"),
              0);
}

TEST_F(TableProgram, WorksAsTheExamplesOfItsManualPage)
{
    const std::vector<std::string> examples = Examples();
    ASSERT_EQ(examples.size(), 3U);
    write("weather.epw", WeatherYear());
    write("large.csv", LargeTable());

    ASSERT_EQ(run(examples[0] + "head -n 2 enthalpies.csv; wc -l < enthalpies.csv"), 0) << err;
    EXPECT_TRUE(out.starts_with("time,h_kJ_per_kg\n2026-01-01T01:00,-")) << out;
    EXPECT_TRUE(out.ends_with("\n8761\n")) << out;

    ASSERT_EQ(run(examples[1] +
                  "awk 'NF == 1 { refused = $1 } { sum += $1 } END { print refused, sum }' hours.txt"),
              0);
    EXPECT_EQ(out, "1 8760\n");

    ASSERT_EQ(run(examples[2] + "dunmoor-table large.csv | cmp - result.csv; wc -l < result.csv"), 0) << err;
    EXPECT_EQ(out, "1200001\n");
}
