// Tables of states: what is written for each row, and which tables are refused.

#include "tests/table/TableTest.h"

TEST(StateTable, GainsThePropertiesThatItLacks)
{
    EXPECT_EQ(Solved("tdb,rh\n70,50\n").text,
              "tdb,rh,twb_F,td_F,w_lb_per_lb,grains_gr_per_lb,h_Btu_per_lb,v_ft3_per_lb,note\n"
              "70,50,58.447365,50.585182,0.0077838064,54.48664491996169,25.300539,13.520647,\n");
    EXPECT_EQ(Solved("tdb,w\n20,7.26\n", {"--units", "metric"}).text.substr(0, 63),
              "tdb,w,twb_C,td_C,rh_percent,h_kJ_per_kg,v_m3_per_kg,note\n20,7.2");
}

TEST(StateTable, KeepsItsOwnColumnsAndLineEnds)
{
    const std::string text =
        Solved("\xEF\xBB\xBFname, RH ,\"Tdb\"\r\n\"a, \"\"b\"\"\",\"50\",70\r\nc,50,70\n").text;
    EXPECT_EQ(text.find("name, RH ,\"Tdb\",twb_F"), 0U);
    EXPECT_NE(text.find("\r\n\"a, \"\"b\"\"\",\"50\",70,58.447365,"), std::string::npos);
    EXPECT_NE(text.find(",\r\nc,50,70,58.447365,"), std::string::npos);
    EXPECT_TRUE(text.ends_with(",\n"));
}

TEST(StateTable, TakesThePressureFromItsColumnTheOptionsOrTheStandard)
{
    const std::string standard = Solved("tdb,rh,p\n70,50,14.696\n").text;
    const std::string fromStandard = Solved("tdb,rh\n70,50\n").text;
    EXPECT_EQ(standard.substr(standard.find("58.4")), fromStandard.substr(fromStandard.find("58.4")));
    const std::string atAltitude = Solved("tdb,rh\n70,50\n", {"--altitude", "5280"}).text;
    const std::string atPressure = Solved("tdb,rh\n70,50\n", {"--pressure=12.1002445"}).text;
    EXPECT_NE(atAltitude, fromStandard);
    EXPECT_EQ(atAltitude, atPressure);
    EXPECT_NE(Solved("tdb,rh,p\n70,50,\n", {"--pressure", "14"}).text.find("70,50,,58."), std::string::npos);
}

TEST(StateTable, LeavesTheRowsEmptyThatTheCalculatorsRefuse)
{
    const auto noteOf = [](const std::string& table, const std::vector<std::string>& arguments = {}) {
        const Solved solved(table, arguments);
        EXPECT_EQ(solved.count.rows, 2);
        EXPECT_EQ(solved.count.refused, 1);
        const std::size_t end = solved.text.rfind('\n', solved.text.size() - 2); // the good row is the last
        const std::size_t begin = solved.text.rfind(",,", end) + 2;
        return solved.text.substr(begin, end - begin);
    };
    EXPECT_EQ(noteOf("tdb,rh\n125.1,50\n70,50\n"), "Temperature Input Out of Range");
    EXPECT_EQ(noteOf("tdb,rh\n-40.1,50\n70,50\n"), "Temperature Input Out of Range");
    EXPECT_EQ(noteOf("tdb,rh\n50.5,50\n50,50\n", {"--units", "metric"}), "Input Out of Range");
    EXPECT_EQ(noteOf("tdb,rh\nabc,50\n70,50\n"), "tdb is not a number");
    EXPECT_EQ(noteOf("tdb,rh\n70,\"1,000\"\n70,50\n"), "rh is not a number");
    EXPECT_EQ(noteOf("tdb,rh\n70,nan\n70,50\n"), "rh is not a number");
    EXPECT_EQ(noteOf("tdb,rh\n70,-inf\n70,50\n"), "rh is not a number");
    EXPECT_EQ(noteOf("tdb,rh\n70,0x1\n70,50\n"), "rh is not a number");
    EXPECT_EQ(noteOf("tdb,rh\n , 50\n70, 50 \n"), "tdb is missing");
    EXPECT_EQ(noteOf("tdb,rh,p\n70,50,0\n70,50,14\n"), "p is not above 0");
    EXPECT_EQ(noteOf("tdb,rh,p\n70,50,\n70,50,14\n"), "p is missing");
    EXPECT_EQ(noteOf("tdb,w\n70,0.1\n70,0.01\n"), "Humidity Ratio Input is High");
    EXPECT_EQ(noteOf("tdb,grains\n70,500\n70,50\n"), "Humidity Ratio Input is too High");
    EXPECT_EQ(noteOf("tdb,twb\n70,-30\n70,50\n"), "Input Out of Range");
    EXPECT_EQ(noteOf("tdb,w\n70,1e39\n70,0.01\n"), "Input Out of Range");
    EXPECT_EQ(noteOf("tdb,rh\n70\n70,50\n"), "1 columns instead of 2");
    EXPECT_EQ(noteOf("tdb,rh\n70,50,9,9\n70,50\n"), "4 columns instead of 2");
}

TEST(StateTable, NotesWhatIsClipped)
{
    EXPECT_NE(Solved("tdb,rh\n70,101\n").text.find(",RH clipped at 100%\n"), std::string::npos);
    EXPECT_NE(Solved("tdb,rh\n70,0\n").text.find(",RH clipped at 0.1%\n"), std::string::npos);
    EXPECT_NE(Solved("tdb,twb\n70,70\n").text.find(",Twb clipped at Tdb\n"), std::string::npos);
    EXPECT_NE(Solved("tdb,td\n70,71\n").text.find(",Dew Pt. clipped at Tdb\n"), std::string::npos);
    EXPECT_NE(Solved("tdb,w\n70,0\n").text.find(",W clipped at 0.00001\n"), std::string::npos);
    EXPECT_NE(Solved("tdb,grains\n70,0\n").text.find(",grains clipped at 0.1\n"), std::string::npos);
}

TEST(StateTable, NeedsAUsableHeader)
{
    const auto errorOf = [](const std::string& table, const std::vector<std::string>& arguments = {}) {
        return TableErrorOf([&] { Solved(table, arguments); });
    };
    EXPECT_EQ(errorOf(""), "no header: the input is empty");
    EXPECT_EQ(errorOf("rh,p\n"), "the header has no column tdb");
    EXPECT_EQ(errorOf("tdb,tdb,rh\n"), "the header names tdb twice");
    EXPECT_EQ(errorOf("tdb,p\n"), "the header needs exactly one of the columns twb, td, rh, w, grains");
    EXPECT_EQ(errorOf("tdb,rh,td\n"), "the header needs exactly one of the columns twb, td, rh, w, grains");
    EXPECT_EQ(errorOf("tdb,grains\n", {"--units", "metric"}), "grains are for English units only");
    EXPECT_EQ(errorOf("tdb,rh\n"), "");
}
