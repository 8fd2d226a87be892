// Hourly weather files in EPW form.

#include "tests/table/TableTest.h"

namespace {

constexpr auto Header = "LOCATION,Nowhere,-,-,made by hand,000000,50.0,10.0,1.0,100.0\n"
                        "DESIGN CONDITIONS,0\n"
                        "TYPICAL/EXTREME PERIODS,0\n"
                        "GROUND TEMPERATURES,0\n"
                        "HOLIDAYS/DAYLIGHT SAVINGS,No,0,0,0\n"
                        "COMMENTS 1,\n"
                        "COMMENTS 2,\n"
                        "DATA PERIODS,1,1,Data,Sunday,1/1,12/31\n";

/// An hour with these texts for dry bulb, dew point and pressure.
std::string Hour(const std::string& tdb, const std::string& td, const std::string& p)
{
    return "2026,1,2,3,60,?9?9?9?9E0," + tdb + "," + td + ",50," + p + ",0,0,300,0,0,0\n";
}

std::string LastLine(const std::string& text)
{
    const std::size_t begin = text.rfind('\n', text.size() - 2) + 1;
    return text.substr(begin, text.size() - begin - 1);
}

} // namespace

TEST(WeatherFile, BecomesTimeStampsAndProperties)
{
    const Solved solved(Header + Hour("20.0", "9.3", "101325"), {"--epw"});
    EXPECT_EQ(solved.text,
              "time,tdb_C,td_C,p_Pa,twb_C,rh_percent,w_g_per_kg,h_kJ_per_kg,v_m3_per_kg,note\n"
              "2026-01-02T03:00,20.0,9.3,101325,13.781481,50.093155,7.2758317,38.459515,0.8402134,\n");
    EXPECT_EQ(solved.count.rows, 1);
    EXPECT_EQ(solved.count.refused, 0);
}

TEST(WeatherFile, MayMissValues)
{
    const auto lineOf = [](const std::string& hour, const std::vector<std::string>& arguments) {
        return LastLine(Solved(Header + hour, arguments).text);
    };
    EXPECT_EQ(lineOf(Hour("99.9", "9.3", "101325"), {"--epw"}),
              "2026-01-02T03:00,,9.3,101325,,,,,,tdb is missing");
    EXPECT_EQ(lineOf(Hour("20", "99.9000", "101325"), {"--epw"}),
              "2026-01-02T03:00,20,,101325,,,,,,td is missing");
    EXPECT_EQ(lineOf(Hour("20", "9.3", "999999."), {"--epw"}), "2026-01-02T03:00,20,9.3,,,,,,,p is missing");
    EXPECT_EQ(lineOf(Hour("20", "9.3", "999999"), {"--epw", "--pressure", "101.325"}),
              "2026-01-02T03:00,20,9.3,,13.781481,50.093155,7.2758317,38.459515,0.8402134,");
}

TEST(WeatherFile, MustBeOne)
{
    const auto errorOf = [](const std::string& text) {
        return TableErrorOf([&] { Solved(text, {"--epw"}); });
    };
    const std::string expected =
        "not a weather file in EPW form: it begins with 8 lines, the first with LOCATION";
    EXPECT_EQ(errorOf(""), expected);
    EXPECT_EQ(errorOf("tdb,rh\n70,50\n"), expected);
    EXPECT_EQ(errorOf("LOCATION,Nowhere\n"), expected);
    EXPECT_EQ(errorOf(std::string(Header) + "2026,1,2\n"), "line 9: not an hour in EPW form");
}
