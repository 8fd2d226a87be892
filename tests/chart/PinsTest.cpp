// Pinned readings and the cross hair on the main menu's chart, by the mouse and by the keyboard.

#include "tests/chart/ChartOnMenu.h"
#include "tests/chart/WholeState.h"

#include <QAccessible>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QMenu>

namespace {

/// What assistive technology reads of the cross hair.
std::string described(const QWidget& picture) { return picture.accessibleDescription().toStdString(); }

bool startsWith(const std::string& text, const std::string& start) { return text.rfind(start, 0) == 0; }

} // namespace

TEST_F(ChartOnMenu, PinsAReadingByAClickAndLetsItGoByAnother)
{
    start();
    press(Qt::Key_F5); // no key of the chart; gives it the focus, which has a line around it
    const QImage before = shown();
    clickAt(layout().plane.at(75, 0.0093));
    ASSERT_EQ(pins().size(), 1U);
    EXPECT_NEAR(pins().front().Tdb, 75, 0.2);
    EXPECT_NEAR(pins().front().W, 0.0093, 0.0001);
    EXPECT_GT(PixelsThatDiffer(before, shown()), 20);
    EXPECT_EQ(tipAt(layout().plane.at(75, 0.0093)).substr(0, 6), "Pin A\n");

    clickAt(layout().plane.at(75, 0.0093) + QPointF(3, 3));
    EXPECT_TRUE(pins().empty());
    EXPECT_EQ(PixelsThatDiffer(before, shown()), 0);
}

TEST_F(ChartOnMenu, LetsAPinGoByASecondClickAtTheSamePlaceThoughThePlotHasShrunk)
{
    start();
    const QPointF place = layout().plane.at(98, 0.0126);
    clickAt(place);
    ASSERT_EQ(pins().size(), 1U);
    shown();
    ASSERT_GT(QLineF(layout().plane.at(pins().front().Tdb, pins().front().W), place).length(), 10);
    clickAt(place);
    EXPECT_TRUE(pins().empty());
}

TEST_F(ChartOnMenu, KeepsSeveralPinsUntilEsc)
{
    start();
    clickAt(layout().plane.at(75, 0.0093));
    clickAt(layout().plane.at(90, 0.0093));
    clickAt(layout().plane.at(60, 0.005));
    EXPECT_EQ(pins().size(), 3U);
    picture()->window()->resize(1000, 800);
    shown();
    EXPECT_EQ(pins().size(), 3U);
    EXPECT_EQ(tipAt(layout().plane.at(60, 0.005)).substr(0, 6), "Pin C\n");
    press(Qt::Key_Escape);
    EXPECT_TRUE(pins().empty());
}

TEST_F(ChartOnMenu, PinsNothingWhereNoAirIs)
{
    start();
    clickAt(layout().plane.at(45, 0.025));
    clickAt(QPointF(2, 2));
    clickAt(layout().plane.plot.bottomRight() + QPointF(-5, 12));
    EXPECT_TRUE(pins().empty());
}

TEST_F(ChartOnMenu, DropsThePinsOfOtherUnitsOrAnotherPressure)
{
    start();
    clickAt(layout().plane.at(75, 0.0093));
    inOptions([&] { user.click("btnCancel"); });
    EXPECT_EQ(pins().size(), 1U);
    inOptions([&] {
        user.type("txtBP", "12.5");
        user.click("btnOK");
    });
    EXPECT_TRUE(pins().empty());
    clickAt(layout().plane.at(75, 0.0093));
    press(Qt::Key_Right);
    EXPECT_EQ(pins().size(), 1U);
    changeUnits("Metric, SI");
    EXPECT_TRUE(pins().empty());
    changeUnits("English, I-P");
    EXPECT_TRUE(pins().empty());
}

TEST_F(ChartOnMenu, MovesACrossHairByTheArrowKeysAndPinsByEnter)
{
    start();
    press(Qt::Key_Right);
    const std::string first = described(*picture());
    EXPECT_TRUE(startsWith(first, "75.0 °F dry bulb\n")) << first;
    press(Qt::Key_Right);
    EXPECT_TRUE(startsWith(described(*picture()), "76.0 °F dry bulb\n")) << described(*picture());
    press(Qt::Key_Right, Qt::ShiftModifier);
    EXPECT_TRUE(startsWith(described(*picture()), "86.0 °F dry bulb\n")) << described(*picture());
    press(Qt::Key_Return);
    press(Qt::Key_Down, Qt::ShiftModifier);
    press(Qt::Key_Down);
    press(Qt::Key_Enter);
    ASSERT_EQ(pins().size(), 2U);
    EXPECT_EQ(pins()[0].Tdb, 86);
    EXPECT_NEAR(pins()[0].W - pins()[1].W, 0.0011, 1e-9);
    press(Qt::Key_Return);
    EXPECT_EQ(pins().size(), 1U) << "the second Enter lets it go";
    press(Qt::Key_Escape);
    EXPECT_TRUE(pins().empty());
    EXPECT_EQ(described(*picture()), "");
}

TEST_F(ChartOnMenu, StopsTheCrossHairAtSaturationAndAtTheFrame)
{
    startInMetric();
    const auto pinned = [&] {
        press(Qt::Key_Return);
        const chart::Place place = pins().back();
        press(Qt::Key_Return);
        return place;
    };
    press(Qt::Key_Up);
    for (int times = 0; times < 60; ++times)
        press(Qt::Key_Up, Qt::ShiftModifier);
    const chart::Place highest = pinned();
    const chart::Air air = chart::Air::inForce();
    EXPECT_TRUE(highest.W <= air.saturated(highest.Tdb) && highest.W <= 0.03);
    EXPECT_TRUE(highest.W + 0.0001 > air.saturated(highest.Tdb) || highest.W > 0.0298) << highest.W;
    for (int times = 0; times < 60; ++times)
        press(Qt::Key_Down, Qt::ShiftModifier);
    for (int times = 0; times < 20; ++times)
        press(Qt::Key_Right, Qt::ShiftModifier);
    const chart::Place corner = pinned();
    EXPECT_EQ(corner.W, 0);
    EXPECT_EQ(corner.Tdb, 50);
}

TEST_F(ChartOnMenu, OffersItsCommandsInTheContextMenu)
{
    start();
    shown();
    QContextMenuEvent event(QContextMenuEvent::Keyboard, {50, 50}, picture()->mapToGlobal(QPoint(50, 50)));
    QApplication::sendEvent(picture(), &event);
    auto* const menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    ASSERT_NE(menu, nullptr);
    QStringList entries;
    for (const QAction* entry : menu->actions())
        entries << entry->objectName() + "=" + entry->text();
    menu->close();
    EXPECT_EQ(entries.join(", ").toStdString(),
              "mnuOpenChart=&Open Chart, mnuCopyPicture=&Copy Picture, mnuCopyFigures=Copy &Figures, "
              "mnuSavePicture=&Save Picture as..., mnuPrintPicture=&Print...");
}

TEST_F(ChartOnMenu, CopiesTheFiguresForASpreadsheet)
{
    start();
    runCooling();
    clickAt(layout().plane.at(90, 0.0093));
    press(Qt::Key_C, Qt::ControlModifier | Qt::ShiftModifier);
    const QStringList lines = QGuiApplication::clipboard()->text().split('\n');
    ASSERT_EQ(lines.size(), 5) << "headings, two states, a pin, and the end";
    EXPECT_EQ(
        lines[0].toStdString(),
        "State\tDry bulb, °F\tWet bulb, °F\tDew point, °F\tRelative humidity, %\tHumidity ratio, lb/lb\t"
        "Grains, gr/lb\tEnthalpy, Btu/lb\tSpecific volume, ft³/lb\tPressure, psi");
    const AirSnapshot& air = CoolingEnteringAir;
    EXPECT_EQ(lines[1].toStdString(),
              "1 Cooling, entering\t80.0\t" + FormatNumber(air.Twb, "#0.0") + "\t" +
                  FormatNumber(air.td, "#0.0") + "\t50.0\t" + FormatNumber(air.W, "#0.0000") + "\t" +
                  FormatNumber(air.Grains, "#0.0") + "\t" + FormatNumber(air.h, "#0.00") + "\t" +
                  FormatNumber(air.SpVol, "#0.00") + "\t14.696");
    EXPECT_TRUE(lines[3].startsWith("A Pin\t90."));
}

TEST_F(ChartOnMenu, OpensItsWindowByADoubleClickAndLeavesNoPin)
{
    start();
    const QPointF place = layout().plane.at(75, 0.0093);
    doubleClickAt(place);
    ASSERT_NE(User::findWindow("ChartWindow"), nullptr);
    EXPECT_TRUE(User::findWindow("ChartWindow")->isVisible());
    EXPECT_TRUE(pins().empty());
}

TEST_F(ChartOnMenu, KeepsAPinThatIsDoubleClicked)
{
    start();
    const QPointF place = layout().plane.at(75, 0.0093);
    clickAt(place);
    const std::vector<chart::Place> before = pins();
    QTest::qWait(QApplication::doubleClickInterval() + 50); // so that the next click is a first one
    doubleClickAt(layout().plane.at(before.front()));
    EXPECT_EQ(pins(), before);
}

TEST_F(ChartOnMenu, ChangesNothingOfTheStateByPinsAndKeys)
{
    start();
    runMixedAir();
    runCooling();
    const std::string before = wholeState();
    clickAt(layout().plane.at(75, 0.0093));
    for (const Qt::Key key : {Qt::Key_Up, Qt::Key_Left, Qt::Key_Return, Qt::Key_Down, Qt::Key_Escape})
        press(key);
    press(Qt::Key_C, Qt::ControlModifier | Qt::ShiftModifier);
    press(Qt::Key_O, Qt::ControlModifier);
    EXPECT_TRUE(User::findWindow("ChartWindow")->isVisible());
    QApplication::processEvents();
    EXPECT_EQ(wholeState(), before);
}
