#pragma once

#include "chart/Choices.h"
#include "chart/Layout.h"
#include "tests/chart/Modes.h"
#include "tests/screens/CalculatorFixture.h"

#include <QHelpEvent>
#include <QImage>
#include <QTest>
#include <QToolTip>

#include <algorithm>
#include <cstdlib>

/// A user who looks at the chart of the main menu, and runs calculators.
class ChartOnMenu : public CalculatorTest
{
protected:
    QWidget* picture() const { return User::findWindow("MainForm")->findChild<QWidget*>("Image1"); }

    void clickAt(QPointF place) const
    {
        shown();
        QTest::mouseClick(picture(), Qt::LeftButton, Qt::NoModifier, place.toPoint());
    }

    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) const
    {
        shown();
        picture()->setFocus(Qt::TabFocusReason);
        QTest::keyClick(picture(), key, modifiers);
    }

    /// Two clicks of a real mouse.
    void doubleClickAt(QPointF place) const
    {
        shown();
        QWidget& window = *picture()->window();
        QTest::mouseDClick(window.windowHandle(), Qt::LeftButton, Qt::NoModifier,
                           picture()->mapTo(&window, place.toPoint()));
    }

    static const std::vector<chart::Place>& pins() { return chart::Choices::inForce().pins(); }

    /// What the menu shows with the chart, which is painted after the window's first frame.
    QImage shown() const
    {
        QImage image;
        const bool isThere = QTest::qWaitFor([&] {
            image = picture()->grab().toImage();
            return !isBlank(image);
        });
        EXPECT_TRUE(isThere) << "the chart's place stays empty";
        return image;
    }

    static bool isBlank(const QImage& image)
    {
        QImage ground(image.size(), image.format());
        ground.setDevicePixelRatio(image.devicePixelRatio());
        ground.fill(image.pixelColor(0, 0));
        return image == ground;
    }

    chart::Layout layout() const
    {
        chart::View view;
        view.switches = chart::Choices::inForce().switches();
        view.pins = chart::Choices::inForce().pins();
        return {picture()->size(), picture()->font(), view};
    }

    /// True if the menu shows a mark for the state: a dot in one strong color.
    bool isMarked(double tdb, double w) const
    {
        const QImage image = shown();
        const chart::Layout chart = layout();
        const QPointF exactly = chart.plane.at(tdb, w);
        const QPoint place(static_cast<int>(exactly.x()), static_cast<int>(exactly.y()));
        const QColor centre = image.pixelColor(place);
        if (centre.hsvSaturation() < 150)
            return false;
        const QPoint around[] = {{2, 0}, {-2, 0}, {0, 2}, {0, -2}};
        return std::ranges::all_of(
            around, [&](const QPoint& step) { return image.pixelColor(place + step) == centre; });
    }

    void inOptions(const std::function<void()>& actions)
    {
        user.inDialog("Settings", actions);
        user.choose("mnuOptions");
    }

    void changeUnits(const std::string& entry)
    {
        inOptions([&] {
            user.chooseFromList("Combo1", entry);
            user.click("btnOK");
        });
    }

    std::string tipAt(QPointF place) const
    {
        shown();
        return tipAt(*picture(), place);
    }

    static std::string tipAt(QWidget& widget, QPointF place)
    {
        const QPoint there = place.toPoint();
        QHelpEvent event(QEvent::ToolTip, there, widget.mapToGlobal(there));
        QApplication::sendEvent(&widget, &event);
        std::string tip = QToolTip::isVisible() ? QToolTip::text().toStdString() : "";
        QToolTip::hideText();
        EXPECT_TRUE(QTest::qWaitFor([] { return !QToolTip::isVisible(); }));
        return tip;
    }

    void runMixedAir()
    {
        user.click("btnMixedAir");
        calculate("95", "txtRH", "40");
        answerVolume("btnSaveOSA", "1000");
        calculate("75", "txtRH", "50");
        answerVolume("btnRA", "3000");
        user.click("btnMixedAir");
        user.click("btnOK");
        user.choose("mnuMain1");
    }

    void runCooling()
    {
        user.click("btnCooling");
        calculate(IsMetric() ? "30" : "80", "txtRH", "50");
        answerVolume("btnSaveEA", "1000");
        user.inDialog("CoolingLoad2", [this] {
            user.type("txtLATdb", IsMetric() ? "13" : "55");
            user.type("txtLATwb", IsMetric() ? "12.5" : "54");
            user.click("btnOK");
        });
        user.click("btnSetLA");
        user.inDialog("CoolingLoad3", [this] { user.click("Command1"); });
        user.click("btnCalcLoad");
        user.choose("mnuMain1");
    }

    void runHeating()
    {
        user.click("btnHeating");
        calculate(IsMetric() ? "20" : "70", "txtRH", "40");
        answerVolume("btnSaveEnteringAir", "1000");
        user.inDialog("HeatingLoad2", [this] {
            user.type("txtHeatLAT", IsMetric() ? "38" : "100");
            user.click("btnOK");
        });
        user.click("btnInputLeavingAir");
        user.choose("mnuMain1");
    }

    void runHumidification()
    {
        user.click("btnHumidity");
        calculate(IsMetric() ? "-20" : "20", "txtRH", "60");
        user.inDialog("humid2", [this] {
            user.type("txtDesT", IsMetric() ? "21" : "72");
            user.type("txtDesH", "30");
            user.type("txtOSA", "500");
            user.click("btnCalcHumid");
            user.click("btnOK");
        });
        user.click("btnHumidityDesired");
        user.choose("mnuMain1");
    }

    void expectMarked(const std::vector<AirSnapshot>& states)
    {
        for (const AirSnapshot& air : states)
            EXPECT_TRUE(isMarked(air.Tdb, air.W)) << air.Tdb << ", " << air.W;
    }
};

/// True if the colors differ by more than the rounding of a blended color.
inline bool Differ(QRgb one, QRgb other)
{
    constexpr int rounding = 3;
    return std::abs(qRed(one) - qRed(other)) > rounding || std::abs(qGreen(one) - qGreen(other)) > rounding ||
           std::abs(qBlue(one) - qBlue(other)) > rounding;
}

inline int PixelsThatDiffer(const QImage& one, const QImage& other)
{
    int count = 0;
    for (int y = 0; y < one.height(); ++y) {
        for (int x = 0; x < one.width(); ++x)
            count += Differ(one.pixel(x, y), other.pixel(x, y)) ? 1 : 0;
    }
    return count;
}
