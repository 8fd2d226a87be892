// The options screen: what it shows, and how it is closed.

#include "tests/shell/OptionsScreen.h"

#include <QApplication>
#include <QComboBox>
#include <QContextMenuEvent>
#include <QScreen>
#include <QTimer>
#include <QWidget>

TEST_F(OptionsScreen, ShowsTheUnitsAndTheirStoredPressure)
{
    start();
    inCancelledOptions([this] {
        EXPECT_EQ(user.title(), "Options/Settings");
        EXPECT_EQ(user.text("lblUnits"), "  Units");
        EXPECT_EQ(user.text("lblBP"), "  Barometric Pressure");
        EXPECT_EQ(user.text("Combo1"), "English, I-P");
        EXPECT_EQ(user.text("txtBP"), "14.696");
        EXPECT_EQ(user.text("Label1"), " psi");
        EXPECT_EQ(user.text("btnOK"), "OK");
        EXPECT_EQ(user.text("btnCancel"), "Cancel");
        EXPECT_EQ(user.text("btnDefault"), "Use Default Settings");
        const auto* const combo = qobject_cast<QComboBox*>(user.widget("Combo1"));
        EXPECT_EQ(combo->count(), 2);
        EXPECT_EQ(combo->itemText(0), "English, I-P");
        EXPECT_EQ(combo->itemText(1), "Metric, SI");
    });
}

TEST_F(OptionsScreen, ShowsMetricWhereItIsInForce)
{
    startInMetric();
    inCancelledOptions([this] {
        EXPECT_EQ(user.text("Combo1"), "Metric, SI");
        EXPECT_EQ(user.text("txtBP"), "101.352");
        EXPECT_EQ(user.text("Label1"), " kPa");
    });
}

TEST_F(OptionsScreen, StandsInTheMiddleOfTheScreen)
{
    start();
    inCancelledOptions([this] {
        const QWidget* const window = User::findWindow("Settings");
        const QSize screen = QGuiApplication::primaryScreen()->geometry().size();
        EXPECT_EQ(window->pos(),
                  QPoint((screen.width() - window->width()) / 2, (screen.height() - window->height()) / 2));
    });
}

TEST_F(OptionsScreen, ShowsTheOtherSystemsPressureAtOnce)
{
    store("Pressure_kPa", "90.10");
    start();
    inCancelledOptions([this] {
        user.chooseFromList("Combo1", "Metric, SI");
        EXPECT_EQ(user.text("txtBP"), "90.10");
        EXPECT_EQ(user.text("Label1"), " kPa");
        EXPECT_EQ(UnitSystem, 0) << "choosing alone changes nothing";
        user.chooseFromList("Combo1", "English, I-P");
        EXPECT_EQ(user.text("txtBP"), "14.696");
        EXPECT_EQ(user.text("Label1"), " psi");
    });
}

TEST_F(OptionsScreen, ShowsTheDefaultOfTheOtherSystem)
{
    start();
    inCancelledOptions([this] {
        user.chooseFromList("Combo1", "Metric, SI");
        EXPECT_EQ(user.text("txtBP"), "101.352");
    });
}

TEST_F(OptionsScreen, ShowsTheStoredPressureAgainWhenTheChosenEntryIsChosenAgain)
{
    start();
    inCancelledOptions([this] {
        user.type("txtBP", "12");
        user.chooseFromList("Combo1", "English, I-P");
        EXPECT_EQ(user.text("txtBP"), "14.696");
    });
}

TEST_F(OptionsScreen, NamesItsFieldWithTheUnit)
{
    start();
    inCancelledOptions([this] {
        EXPECT_EQ(user.widget("txtBP")->accessibleName().toStdString(), "Barometric pressure, psi");
        user.chooseFromList("Combo1", "Metric, SI");
        EXPECT_EQ(user.widget("txtBP")->accessibleName().toStdString(), "Barometric pressure, kPa");
    });
}

TEST_F(OptionsScreen, UndoesNothingOnCancelAndSavesNothing)
{
    expectNothingTaken([this] { user.click("btnCancel"); });
}

TEST_F(OptionsScreen, ClosesByItsCloseBoxLikeCancel)
{
    expectNothingTaken([this] { user.closeWindow(); });
    EXPECT_EQ(user.window(), "MainForm");
}

TEST_F(OptionsScreen, LetsNoOtherWindowTakeInputMeanwhile)
{
    start();
    inCancelledOptions([this] {
        QWidget* const menu = User::findWindow("MainForm");
        EXPECT_TRUE(menu->isVisible());
        EXPECT_EQ(QApplication::activeModalWidget(), User::findWindow("Settings"));
    });
}

TEST_F(OptionsScreen, MayBeClosedUnderTheContextMenuOfThePressure)
{
    start();
    inOptions([this] {
        QWidget* const field = user.widget("txtBP");
        QTimer::singleShot(0, qApp, [this] {
            EXPECT_NE(QApplication::activePopupWidget(), nullptr);
            user.closeWindow();
        });
        QContextMenuEvent event(QContextMenuEvent::Mouse, {5, 5}, field->mapToGlobal(QPoint(5, 5)));
        QApplication::sendEvent(field, &event);
    });
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
    EXPECT_EQ(user.window(), "MainForm");
}
