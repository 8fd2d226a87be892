// The program on a desktop whose locale has other digits, another decimal point and writes from right to left
// (run under ar_EG).

#include "platform/Desktop.h"
#include "tests/support/ProgramTest.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QLocale>

using ArabicLocale = ProgramTest;

TEST_F(ArabicLocale, WritesNumbersWithItsDecimalPointAndReadsThemBack)
{
    ASSERT_EQ(QLocale::system().zeroDigit(), "٠");
    start();
    EXPECT_EQ(BaroPressure, 14.696F);
    user.click("btnAirCalc");
    EXPECT_EQ(user.text("txtP"), "14٫696");
    user.type("txtTdb", "70");
    user.click("txtRH");
    user.type("txtRH", "50");
    user.click("btnCALCULATE");
    EXPECT_EQ(user.text("txtTwb"), "58٫4");
    user.click("btnCALCULATE"); // reads back what it shows
    EXPECT_TRUE(user.messages.empty());
    EXPECT_EQ(user.text("txtTwb"), "58٫4");
}

TEST_F(ArabicLocale, RefusesDigitsOfItsOwnWithAMessage)
{
    start();
    user.click("btnAirCalc");
    QGuiApplication::clipboard()->setText("٧٠");
    user.click("txtTdb");
    user.key(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(user.text("txtTdb"), "٧٠");
    user.click("txtRH");
    user.type("txtRH", "50");
    user.click("btnCALCULATE");
    EXPECT_EQ(user.messages, std::vector{outOfRange});
}

TEST_F(ArabicLocale, KeepsItsWindowsFromLeftToRight)
{
    start();
    EXPECT_EQ(QGuiApplication::layoutDirection(), Qt::LeftToRight);
}

TEST_F(ArabicLocale, FindsItsSettingsAgain)
{
    store("Pressure_psi", "14٫5");
    start();
    EXPECT_EQ(BaroPressure, 14.5F);
}
