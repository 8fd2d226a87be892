// The command line.

#include "tests/table/TableTest.h"

namespace {

std::string ErrorOfOptions(const std::vector<std::string>& arguments)
{
    return TableErrorOf([&] { ParseOptions(arguments); });
}

} // namespace

TEST(TableOptions, AreReadInBothSpellings)
{
    for (const auto& arguments :
         std::vector<std::vector<std::string>>{{"--units", "metric", "--pressure", "95.5", "file.csv"},
                                               {"file.csv", "--pressure=95.5", "--units=metric"}}) {
        const TableOptions options = ParseOptions(arguments);
        EXPECT_TRUE(options.isMetric);
        EXPECT_EQ(options.pressure, 95.5F);
        EXPECT_EQ(options.file, "file.csv");
    }
    EXPECT_FALSE(ParseOptions({}).isMetric);
    EXPECT_TRUE(ParseOptions({"--epw"}).isMetric);
    EXPECT_EQ(ParseOptions({"-"}).file, "-");
}

// The handbook's table of the standard atmosphere: 12.228 psi at 5000 ft, 89.874 kPa at 1000 m.
TEST(TableOptions, TurnAnAltitudeIntoAPressure)
{
    EXPECT_NEAR(*ParseOptions({"--altitude", "5000"}).pressure, 12.228, 0.002);
    EXPECT_NEAR(*ParseOptions({"--units", "metric", "--altitude", "1000"}).pressure, 89.874, 0.002);
    EXPECT_FLOAT_EQ(*ParseOptions({"--altitude=0"}).pressure, 14.696F);
}

TEST(TableOptions, AreRefusedInOneLine)
{
    EXPECT_EQ(ErrorOfOptions({"--fast"}), "unknown option --fast");
    EXPECT_EQ(ErrorOfOptions({"-u"}), "unknown option -u");
    EXPECT_EQ(ErrorOfOptions({"--units"}), "--units needs a value");
    EXPECT_EQ(ErrorOfOptions({"--units", "SI"}), "--units is english or metric, not \"SI\"");
    EXPECT_EQ(ErrorOfOptions({"--pressure", "high"}), "--pressure needs a number, not \"high\"");
    EXPECT_EQ(ErrorOfOptions({"--pressure", "0"}), "the pressure must be above 0");
    EXPECT_EQ(ErrorOfOptions({"--altitude", "200000"}), "the pressure must be above 0");
    EXPECT_EQ(ErrorOfOptions({"--pressure", "14", "--altitude", "0"}),
              "give --pressure or --altitude, not both");
    EXPECT_EQ(ErrorOfOptions({"--epw=yes"}), "--epw takes no value");
    EXPECT_EQ(ErrorOfOptions({"--epw", "--units", "english"}),
              "a weather file is metric: leave out --units english");
    EXPECT_EQ(ErrorOfOptions({"a.csv", "b.csv"}), "more than one file: a.csv, b.csv");
}
