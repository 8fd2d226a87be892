// Every form on several kinds of screens. The build runs these tests once for each kind: see the CMake file.

#include "tests/support/EveryForm.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QImage>
#include <QLineEdit>
#include <QScreen>
#include <QScrollArea>

#include <array>

class EveryFormOnScreen : public EveryFormTest
{
protected:
    /// A window manager adds the title bar some time after the window is shown, and may move the window then.
    void SetUp() override
    {
        EveryFormTest::SetUp();
        const bool hasManager = qEnvironmentVariableIsSet("DUNMOOR_TEST_ON_DISPLAY");
        ASSERT_TRUE(
            QTest::qWaitFor([&] { return !hasManager || window->frameGeometry() != window->geometry(); }));
    }

    QRect available() const { return QGuiApplication::primaryScreen()->availableGeometry(); }

    std::string placeOfWindow() const
    {
        const QRect place = window->frameGeometry();
        return testing::PrintToString(std::array{place.x(), place.y(), place.width(), place.height()});
    }

    void showsItsUpperLeftCorner() const
    {
        const auto isShown = [this] {
            const QPoint corner = window->frameGeometry().topLeft();
            return corner.y() >= available().top() && corner.x() >= available().left();
        };
        EXPECT_TRUE(QTest::qWaitFor(isShown)) << placeOfWindow();
    }

    void fitsTheScreen() const
    {
        const auto isWithin = [this] { return available().contains(window->frameGeometry()); };
        EXPECT_TRUE(QTest::qWaitFor(isWithin)) << placeOfWindow();
    }

    void letsTheUserReachEachControl() const
    {
        auto* const view = window->findChild<QScrollArea*>();
        int reached = 0;
        for (QWidget* const control : view->findChildren<QWidget*>()) {
            const bool isInput = qobject_cast<QLineEdit*>(control) != nullptr ||
                                 qobject_cast<QAbstractButton*>(control) != nullptr ||
                                 qobject_cast<QComboBox*>(control) != nullptr;
            if (!isInput || !control->isVisible())
                continue;
            view->ensureWidgetVisible(control);
            EXPECT_EQ(control->visibleRegion().boundingRect(), control->rect())
                << control->objectName().toStdString();
            ++reached;
        }
        EXPECT_GE(reached, 1);
    }

    /// A screen is as large as it was designed if the display has room for it. A dialog fits its controls.
    void keepsItsSizeWhereTheScreenHasRoom() const
    {
        const bool isDialog = window->windowType() == Qt::Dialog;
        const bool hasRoom = available().height() >= 700 && available().width() >= 800;
        if (!isDialog && hasRoom) {
            EXPECT_GE(window->width(), 800);
            EXPECT_GE(window->height(), 660);
        }
    }
};

// One test for all of these, because most of a test's time is the start of its process.
TEST_P(EveryFormOnScreen, OpensWholeOnThePrimaryScreenWithEachControlWithinReach)
{
    EXPECT_EQ(window->screen(), QGuiApplication::primaryScreen());
    showsItsUpperLeftCorner();
    fitsTheScreen();
    keepsItsSizeWhereTheScreenHasRoom();
    letsTheUserReachEachControl();
}

/// The pressure of a calculator, in its frame.
using PressureBox = ProgramTest;

TEST_F(PressureBox, HasAllItsSidesInThisScaling)
{
    start();
    form<AirPropertiesCalc>().Show();
    QWidget* const window = form<AirPropertiesCalc>().window();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(window));
    QImage image = window->grab().toImage();
    const double scale = image.devicePixelRatio();
    const auto* const box = window->findChild<QWidget*>("txtP");
    const QPoint corner = box->mapTo(window, QPoint(0, 0));
    const QColor background = window->palette().color(QPalette::Window);
    // Some pixel near each side is darker than the background, in the middle of that side.
    const auto hasLine = [&](double x, double y, bool isUpright) {
        for (double d = -1; d <= 1; d += 0.5) {
            const QPoint place(static_cast<int>((x + (isUpright ? d : 0)) * scale),
                               static_cast<int>((y + (isUpright ? 0 : d)) * scale));
            if (image.pixelColor(place).lightness() < background.lightness() - 15)
                return true;
        }
        return false;
    };
    const double middle = corner.y() + box->height() / 2.0;
    EXPECT_TRUE(hasLine(corner.x() + 0.5, middle, true)) << "left";
    EXPECT_TRUE(hasLine(corner.x() + box->width() - 0.5, middle, true)) << "right";
    EXPECT_TRUE(hasLine(corner.x() + 8, corner.y() + 0.5, false)) << "top";
    EXPECT_TRUE(hasLine(corner.x() + 8, corner.y() + box->height() - 0.5, false)) << "bottom";
}

/// The main menu with its chart.
using MovedWindow = ProgramTest;

TEST_F(MovedWindow, IsPaintedInTheScalingOfEachScreen)
{
    start();
    QWidget* const window = form<MainForm>().window();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(window));
    for (const QScreen* const screen : QGuiApplication::screens()) {
        window->move(screen->geometry().topLeft() + QPoint(50, 50));
        ASSERT_TRUE(QTest::qWaitFor([&] { return window->screen() == screen; }))
            << screen->name().toStdString();
        const QWidget* const chart = window->findChild<QWidget*>("Image1");
        EXPECT_EQ(window->grab(chart->geometry()).devicePixelRatio(), screen->devicePixelRatio());
        EXPECT_TRUE(chart->isVisible());
    }
}

INSTANTIATE_TEST_SUITE_P(InBothModes, EveryFormOnScreen, testing::ValuesIn(EveryFormInBothModes()), NameOf);
