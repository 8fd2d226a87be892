// The chart as a user of the main menu sees it: when it appears, what it says, and how it is copied.

#include "tests/chart/ChartOnMenu.h"
#include "tests/chart/WholeState.h"

#include <QClipboard>
#include <QContextMenuEvent>
#include <QMenu>

namespace {

/// What a tip says of a state that a calculator solved.
std::string tipOf(const AirSnapshot& air)
{
    const bool isMetric = IsMetric();
    const std::string degrees = isMetric ? " °C " : " °F ";
    std::string tip = FormatNumber(air.Tdb, "#0.0") + degrees + "dry bulb\n" + FormatNumber(air.Twb, "#0.0") +
                      degrees + "wet bulb\n" + FormatNumber(air.td, "#0.0") + degrees + "dew point\n" +
                      FormatNumber(air.RH * 100.0, "#0.0") + " % relative humidity\n";
    if (isMetric)
        return tip + FormatNumber(air.W * 1000.0, "#0.00") + " g/kg humidity ratio\n" +
               FormatNumber(air.h, "#0.00") + " kJ/kg enthalpy\n" + FormatNumber(air.SpVol, "#0.000") +
               " m³/kg specific volume";
    return tip + FormatNumber(air.W, "#0.0000") + " lb/lb humidity ratio\n" +
           FormatNumber(air.W * 7000.0, "#0.0") + " gr/lb grains\n" + FormatNumber(air.h, "#0.00") +
           " Btu/lb enthalpy\n" + FormatNumber(air.SpVol, "#0.00") + " ft³/lb specific volume";
}

} // namespace

TEST_F(ChartOnMenu, ComesAfterTheFirstPictureOfTheMenu)
{
    start();
    const QImage first = picture()->grab().toImage();
    EXPECT_TRUE(isBlank(first));
    EXPECT_GT(PixelsThatDiffer(first, shown()), 10000);
}

TEST_F(ChartOnMenu, FollowsTheColoursOfTheDesktop)
{
    start();
    const QImage light = shown();
    QPalette dark(QColor(45, 45, 48));
    dark.setColor(QPalette::Base, QColor(30, 30, 32));
    QApplication::setPalette(dark);
    const chart::Layout chart = layout();
    const QPoint paper = chart.plane.at(105.3, 0.0012).toPoint();
    EXPECT_GT(light.pixelColor(paper).lightness(), 200);
    EXPECT_TRUE(QTest::qWaitFor([&] { return shown().pixelColor(paper).lightness() < 60; }));
}

TEST_F(ChartOnMenu, SaysWhatIsUnderThePointer)
{
    start();
    runCooling();
    const chart::Layout chart = layout();
    const QPointF place = chart.plane.at(75, 0.0093);
    // A pixel of the chart is about 0.2 degrees and 0.00005 lb/lb.
    const std::string tip = tipAt(place);
    const auto [tdb, w] = chart.plane.placeAt(place.toPoint());
    StatePoint.Tdb = static_cast<Single>(tdb);
    StatePoint.W = static_cast<Single>(w);
    SolveFromW();
    EXPECT_EQ(tip, tipOf(AirSnapshot::of(StatePoint, 0)));
    EXPECT_NEAR(tdb, 75, 0.2);
    EXPECT_NEAR(w, 0.0093, 0.0001);

    const std::string entering = tipAt(chart.plane.at(CoolingEnteringAir.Tdb, CoolingEnteringAir.W));
    EXPECT_EQ(entering, "Cooling, entering\n" + tipOf(CoolingEnteringAir) + "\nat 14.696 psi");
    EXPECT_EQ(entering.find("80.0 °F dry bulb"), std::string("Cooling, entering\n").size());
    EXPECT_EQ(tipAt(chart.plane.at(40, 0.02)), "") << "no air is above saturation";
    EXPECT_EQ(tipAt({1, 1}), "");
}

TEST_F(ChartOnMenu, SaysItInMetric)
{
    startInMetric();
    runHeating();
    EXPECT_EQ(tipAt(layout().plane.at(HeatingLeavingAir.Tdb, HeatingLeavingAir.W)),
              "Heating, leaving\n" + tipOf(HeatingLeavingAir) + "\nat 101.352 kPa");
}

TEST_F(ChartOnMenu, IsCopiedAsAPictureByItsMenu)
{
    start();
    shown();
    QGuiApplication::clipboard()->clear();
    QContextMenuEvent event(QContextMenuEvent::Mouse, {50, 50}, picture()->mapToGlobal(QPoint(50, 50)));
    QApplication::sendEvent(picture(), &event);
    auto* const menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    ASSERT_NE(menu, nullptr);
    User::chooseFromMenu(*menu, menu->findChild<QAction*>("mnuCopyPicture"));
    const QImage copied = QGuiApplication::clipboard()->image();
    EXPECT_EQ(copied.size(), QSize(3000, 2100));
    EXPECT_EQ(copied.pixelColor(5, 5), QColor(Qt::white));
    EXPECT_GT(PixelsThatDiffer(copied, copied.scaled(1500, 1050).scaled(3000, 2100)), 50000)
        << "the picture is blown up";
}

TEST_F(ChartOnMenu, IsCopiedByTheKeyboard)
{
    start();
    picture()->setFocus(Qt::TabFocusReason);
    QTest::keyClick(picture(), Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QGuiApplication::clipboard()->image().size(), QSize(3000, 2100));
}

TEST_F(ChartOnMenu, ChangesNothingOfTheState)
{
    start();
    runMixedAir();
    runCooling();
    runHeating();
    runHumidification();
    for (const char* pressure : {"0", "-5", "0.1", "0.5", "12.35", "14.696", "101.325", "1e30", "3e38"}) {
        for (const Boolean16 system : {False16, True16}) {
            BaroPressure = ParseSingle(pressure);
            UnitSystem = system;
            const std::string before = wholeState();
            picture()->update();
            EXPECT_FALSE(shown().isNull());
            for (const QPoint place : {QPoint(300, 300), QPoint(1, 1), QPoint(150, 500)})
                tipAt(place);
            QTest::keyClick(picture(), Qt::Key_C, Qt::ControlModifier);
            EXPECT_EQ(wholeState(), before);
        }
    }
}

TEST_F(ChartOnMenu, FollowsTheSizeOfTheWindow)
{
    start();
    shown();
    User::findWindow("MainForm")->resize(1100, 900);
    runCooling();
    expectMarked({CoolingEnteringAir, CoolingLeavingAir});
    EXPECT_GT(layout().plane.plot.width(), 700);
}

TEST_F(ChartOnMenu, IsDrawnInTheScreensOwnPixels)
{
    qputenv("QT_SCALE_FACTOR", "2"); // for the test's new process
    EXPECT_EXIT(
        {
            start();
            const QImage sharp = shown();
            const QImage blurred = sharp.scaled(sharp.size() / 2).scaled(sharp.size());
            const bool isSharp =
                sharp.size() == picture()->size() * 2 && PixelsThatDiffer(sharp, blurred) > 9000;
            std::_Exit(isSharp ? 0 : 1);
        },
        testing::ExitedWithCode(0), "");
}
