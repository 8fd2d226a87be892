// The program on a desktop whose locale writes a decimal comma (run under de_DE).

#include "tests/support/ProgramTest.h"

using DecimalComma = ProgramTest;

TEST_F(DecimalComma, StartsAtStandardPressure)
{
    start();
    EXPECT_EQ(BaroPressure, 14.696F);
    EXPECT_EQ(numberLocale.decimalPoint, ",");
    EXPECT_EQ(numberLocale.groupSeparator, ".");
}

TEST_F(DecimalComma, ReadsAndShowsEveryFieldWithAComma)
{
    start();
    user.click("btnAirCalc");
    EXPECT_EQ(user.text("txtP"), "14,696");
    user.type("txtTdb", "70,5");
    user.click("txtRH");
    user.type("txtRH", "50");
    user.click("btnCALCULATE");
    EXPECT_TRUE(user.messages.empty());
    EXPECT_EQ(StatePoint.Tdb, 70.5F);
    EXPECT_EQ(StatePoint.P, static_cast<double>(14.696F));
    EXPECT_EQ(user.text("txtRH"), "50,0");
    EXPECT_EQ(user.text("txtTwb"), "58,9");
    EXPECT_EQ(user.text("txtW").substr(0, 6), "0,0079");
    user.click("btnCALCULATE"); // reads back what it shows
    EXPECT_TRUE(user.messages.empty());
    EXPECT_EQ(user.text("txtRH").substr(2), ",0");
}

TEST_F(DecimalComma, WritesItsClipsWithAComma)
{
    start();
    user.click("btnAirCalc");
    user.type("txtTdb", "70");
    user.click("txtRH");
    user.type("txtRH", "0");
    user.click("btnCALCULATE");
    EXPECT_EQ(user.text("txtRH"), "0,1");
}

TEST_F(DecimalComma, LeavesAClipWithACommaOnShowWhereTheSolverFails)
{
    store("Pressure_psi", "0"); // the solver divides by it, after the clip
    start();
    user.click("btnAirCalc");
    user.type("txtTdb", "70");
    user.click("txtRH");
    user.type("txtRH", "-1");
    user.click("btnCALCULATE");
    EXPECT_EQ(user.messages, std::vector{outOfRange});
    EXPECT_EQ(user.text("txtRH"), "0,1");
    EXPECT_EQ(user.text("lblRH2"), " RH clipped at 0.1%");
}

TEST_F(DecimalComma, StoresAndReadsThePressureWithAComma)
{
    start();
    user.inDialog("Settings", [this] {
        EXPECT_EQ(user.text("txtBP"), "14,696");
        user.type("txtBP", "13,50");
        user.click("btnOK");
    });
    user.choose("mnuOptions");
    EXPECT_EQ(BaroPressure, 13.5F);
    EXPECT_EQ(stored("Pressure_psi"), "13,50");
    user.choose("mnuExit");
    EXPECT_EQ(stored("Baro_Pressure"), "13,5");
    BaroPressure = 0;
    start();
    EXPECT_EQ(BaroPressure, 13.5F);
}

TEST_F(DecimalComma, ReadsACommaThatWasWrittenIntoTheFileWithoutQuotes)
{
    start();
    user.inDialog("Settings", [this] {
        user.chooseFromList("Combo1", "Metric, SI");
        user.click("btnDefault");
        EXPECT_EQ(user.text("txtBP"), "101,325");
        user.click("btnCancel");
    });
    user.choose("mnuOptions");
    EXPECT_EQ(stored("Pressure_kPa"), "101,325");
}

TEST_F(DecimalComma, TakesAPointForAGroupSeparator)
{
    start();
    user.click("btnAirCalc");
    user.type("txtTdb", "7.0,5"); // a separator anywhere between the first digit and the comma
    user.click("txtRH");
    user.type("txtRH", "50");
    user.click("btnCALCULATE");
    EXPECT_EQ(StatePoint.Tdb, 70.5F);
}
