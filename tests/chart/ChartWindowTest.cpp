// The chart's own window: its table, its switches, and zoom.

#include "tests/chart/ChartInWindow.h"
#include "tests/chart/WholeState.h"

TEST_F(ChartInWindow, IsNotLoadedBeforeItIsOpened)
{
    start();
    shown();
    EXPECT_EQ(window(), nullptr);
    open();
    EXPECT_EQ(window()->windowTitle(), "Psychrometric Chart");
}

TEST_F(ChartInWindow, HasTheStatesAndThePinsInATable)
{
    start();
    runCooling();
    open();
    QTest::mouseClick(&canvas(), Qt::LeftButton, Qt::NoModifier, canvas().rect().center() + QPoint(80, 60));
    auto& table = part<QTableWidget>("tblStates");
    ASSERT_EQ(table.rowCount(), 3);
    EXPECT_EQ(table.item(0, 0)->text(), "1 Cooling, entering");
    EXPECT_EQ(table.item(0, 1)->text(), "80.0");
    EXPECT_EQ(table.item(1, 2)->text().toStdString(), FormatNumber(CoolingLeavingAir.Twb, "#0.0"));
    EXPECT_EQ(table.item(1, 7)->text().toStdString(), FormatNumber(CoolingLeavingAir.h, "#0.00"));
    EXPECT_EQ(table.item(2, 0)->text(), "A Pin");
}

TEST_F(ChartInWindow, FollowsTheNextRunAndTheOptions)
{
    start();
    open();
    auto& table = part<QTableWidget>("tblStates");
    EXPECT_EQ(table.rowCount(), 0);
    const QImage before = large();
    runHeating();
    EXPECT_TRUE(window()->isVisible());
    EXPECT_EQ(table.rowCount(), 2);
    EXPECT_GT(PixelsThatDiffer(before, large()), 100);
    inOptions([&] {
        user.chooseFromList("Combo1", "Metric, SI");
        user.click("btnOK");
    });
    EXPECT_EQ(table.rowCount(), 0) << "a run in other units";
    EXPECT_EQ(table.horizontalHeaderItem(1)->data(Qt::AccessibleTextRole), "Dry bulb, °C");
}

TEST_F(ChartInWindow, CopiesTheSelectedCells)
{
    start();
    runCooling();
    open();
    auto& table = part<QTableWidget>("tblStates");
    table.setFocus();
    QTest::keyClick(&table, Qt::Key_Down);
    QTest::keyClick(&table, Qt::Key_Home);
    QTest::keyClick(&table, Qt::Key_Up);
    QTest::keyClick(&table, Qt::Key_Right, Qt::ShiftModifier);
    QTest::keyClick(&table, Qt::Key_Down, Qt::ShiftModifier);
    QTest::keyClick(&table, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QGuiApplication::clipboard()->text(),
              "State\tDry bulb, °F\n1 Cooling, entering\t80.0\n2 Cooling, leaving\t55.0\n");
}

TEST_F(ChartInWindow, ZoomsByTheWheelAboutThePointer)
{
    start();
    open();
    const QPointF place = canvas().rect().center() + QPointF(60, 70);
    const QPointF other = place + QPointF(150, 40);
    const auto here = readingAt(place);
    const auto there = readingAt(other);
    turnWheel(place, 3);
    EXPECT_NEAR(readingAt(place).first, here.first, 0.11);
    EXPECT_NEAR(readingAt(place).second, here.second, 0.00011);
    EXPECT_NEAR((readingAt(other).first - here.first) * 1.25 * 1.25 * 1.25, there.first - here.first, 0.7)
        << "the plot can become a little wider";
    turnWheel(place, -3);
    EXPECT_NEAR(readingAt(other).first, there.first, 0.11);
}

TEST_F(ChartInWindow, ZoomsAndMovesByTheKeysAndShowsTheWholeAgain)
{
    start();
    open();
    const QImage whole = large();
    const QPointF place = canvas().rect().center() + QPointF(60, 70);
    const double before = readingAt(place).first;
    key(Qt::Key_Plus);
    const QImage zoomed = large();
    EXPECT_GT(PixelsThatDiffer(whole, zoomed), 1000);
    const double zoomedTo = readingAt(place).first;
    key(Qt::Key_Right, Qt::ControlModifier);
    EXPECT_GT(readingAt(place).first, zoomedTo + 1);
    key(Qt::Key_Home);
    EXPECT_NEAR(readingAt(place).first, before, 1e-6);
    key(Qt::Key_Minus);
    EXPECT_GT(std::abs(readingAt(place).first - before), 0.2);
    part<QAbstractButton>("btnWhole").click();
    EXPECT_NEAR(readingAt(place).first, before, 1e-6);
}

TEST_F(ChartInWindow, IsDraggedWithoutPinning)
{
    start();
    open();
    turnWheel(canvas().rect().center(), 4);
    const QPoint from = canvas().rect().center() + QPoint(60, 70);
    const QPoint to = from + QPoint(-90, 20);
    const auto grabbed = readingAt(from);
    QTest::mousePress(&canvas(), Qt::LeftButton, Qt::NoModifier, from);
    for (int part = 1; part <= 9; ++part)
        QTest::mouseMove(&canvas(), from + (to - from) * part / 9);
    QTest::mouseRelease(&canvas(), Qt::LeftButton, Qt::NoModifier, to);
    EXPECT_NEAR(readingAt(to).first, grabbed.first, 0.11);
    EXPECT_NEAR(readingAt(to).second, grabbed.second, 0.00011);
    EXPECT_TRUE(pins().empty());
}

TEST_F(ChartInWindow, LeavesTheMenusChartItsOwnZoomAndCrossHair)
{
    start();
    open();
    const QImage menu = shown();
    key(Qt::Key_Plus);
    key(Qt::Key_Right);
    EXPECT_EQ(PixelsThatDiffer(menu, shown()), 0);
    key(Qt::Key_Return);
    EXPECT_GT(PixelsThatDiffer(menu, shown()), 20) << "a pin is shared";
}

TEST_F(ChartInWindow, SwitchesEachFamilyOnBothCharts)
{
    start();
    runCooling();
    open();
    for (const chart::SwitchRow& row : chart::switchRows) {
        part<QWidget>(row.name).setFocus(Qt::TabFocusReason);
        const QImage window = large();
        const QImage menu = shown();
        toggle(row.name);
        EXPECT_GT(PixelsThatDiffer(window, large()), 200) << row.name;
        EXPECT_GT(PixelsThatDiffer(menu, shown()), 100) << row.name;
        toggle(row.name);
        EXPECT_EQ(PixelsThatDiffer(window, large()), 0) << row.name;
    }
}

TEST_F(ChartInWindow, IsLaidOutAnewFrom640By480To3840By2160)
{
    start();
    runMixedAir();
    open();
    EXPECT_LE(window()->minimumWidth(), 640);
    EXPECT_LE(window()->minimumHeight(), 480);
    for (const QSize size : {QSize(640, 480), QSize(1366, 768), QSize(3840, 2160)}) {
        window()->resize(size);
        const QImage image = large();
        EXPECT_EQ(window()->size(), size);
        EXPECT_GT(image.height(), size.height() / 2 - 20) << size.width();
        EXPECT_GT(image.width(), size.width() / 2) << size.width();
        const QImage blurred = image.scaled(image.size() / 2).scaled(image.size());
        EXPECT_GT(PixelsThatDiffer(image, blurred), image.width() * 5) << "a picture is blown up";
    }
}

TEST_F(ChartInWindow, IsReachedByTheTabKeyAlone)
{
    start();
    open();
    canvas().setFocus(Qt::TabFocusReason);
    Names stops;
    do {
        stops.push_back(window()->focusWidget()->objectName().toStdString());
        QTest::keyClick(window()->focusWidget(), Qt::Key_Tab);
    } while (!canvas().hasFocus() && stops.size() < 30);
    EXPECT_EQ(stops, (Names{"picChart", "tblStates", "chkRelativeHumidity", "chkWetBulb", "chkEnthalpy",
                            "chkSpecificVolume", "chkComfort", "chkHeatRatio", "chkMollier", "btnWhole"}));
}

TEST_F(ChartInWindow, ChangesNothingOfTheState)
{
    start();
    runMixedAir();
    runCooling();
    const std::string before = wholeState();
    open();
    for (const chart::SwitchRow& row : chart::switchRows)
        toggle(row.name);
    turnWheel(canvas().rect().center(), 2);
    for (const Qt::Key each : {Qt::Key_Right, Qt::Key_Return, Qt::Key_Plus, Qt::Key_Home, Qt::Key_Escape})
        key(each);
    readingAt(canvas().rect().center());
    EXPECT_EQ(wholeState(), before);
}
