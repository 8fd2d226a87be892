// A desktop with large letters, and large windows.

#include "screens/AirPropertiesCalc.h"
#include "screens/Answers1.h"
#include "shell/MainForm.h"
#include "tests/support/ProgramTest.h"

#include <QApplication>
#include <QFontInfo>
#include <QFontMetrics>
#include <QLabel>
#include <QTest>

using namespace forms;

class LargeLetters : public ProgramTest
{
protected:
    static void startWithLetters(int points)
    {
        QFont font = QApplication::font();
        font.setPointSize(points);
        QApplication::setFont(font);
        start();
    }

    template <class F>
    static QWidget& shown()
    {
        form<F>().Show();
        QWidget* const window = form<F>().window();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(window));
        return *window;
    }

    /// The chart's part of the main menu's width.
    static double chartShare()
    {
        const QWidget& menu = shown<MainForm>();
        return 1.0 * menu.findChild<QWidget*>("Image1")->width() / menu.width();
    }
};

TEST_F(LargeLetters, LeaveTheChartItsShareOfTheMainMenu)
{
    startWithLetters(20);
    EXPECT_GT(chartShare(), 0.6);
    EXPECT_GT(User::findWindow("MainForm")->width(), 1000);
}

TEST_F(LargeLetters, OfUsualSizeLeaveTheMainMenuItsSize)
{
    start();
    EXPECT_GT(chartShare(), 0.6);
    EXPECT_EQ(User::findWindow("MainForm")->size(), QSize(800, 660));
}

TEST_F(LargeLetters, EnlargeTheMixedAirTableAsFarAsItsCellsAllow)
{
    startWithLetters(20);
    MixedOutsideAir.AirVolume = 12345;
    form<Answers1>().fill();
    for (const QLabel* const cell : shown<Answers1>().findChildren<QLabel*>()) {
        if (cell->wordWrap() || !cell->isVisible())
            continue;
        EXPECT_GT(QFontInfo(cell->font()).pixelSize(), 13) << cell->objectName().toStdString();
        EXPECT_LE(cell->fontMetrics().horizontalAdvance(cell->text()), cell->width())
            << cell->objectName().toStdString();
        EXPECT_LE(cell->fontMetrics().height(), cell->height()) << cell->objectName().toStdString();
    }
}

TEST_F(LargeLetters, OfUsualSizeLeaveTheMixedAirTableItsOwn)
{
    start();
    form<Answers1>().fill();
    const auto* const cell = shown<Answers1>().findChild<QLabel*>("lblTdb(0)");
    EXPECT_EQ(QFontInfo(cell->font()).pixelSize(), 13);
}

using LargeWindow = LargeLetters;

TEST_F(LargeWindow, KeepsTheControlsOfACalculatorTogether)
{
    start();
    QWidget& window = shown<AirPropertiesCalc>();
    window.resize(2000, 1400);
    QApplication::processEvents();
    const auto* const unit = window.findChild<QWidget*>("lblTdb2");
    const auto* const button = window.findChild<QWidget*>("btnCALCULATE");
    EXPECT_LT(unit->width(), 600);
    const QPoint beside(unit->width(), 0);
    EXPECT_LT(button->mapTo(&window, QPoint(0, 0)).x() - unit->mapTo(&window, beside).x(), 100);
}
