#pragma once

#include "tests/chart/ChartOnMenu.h"

#include <QAbstractButton>
#include <QClipboard>
#include <QTableWidget>

/// A user at the chart's own window.
class ChartInWindow : public ChartOnMenu
{
protected:
    void open()
    {
        press(Qt::Key_O, Qt::ControlModifier);
        ASSERT_TRUE(QTest::qWaitForWindowActive(window()));
        large();
    }

    static QWidget* window() { return User::findWindow("ChartWindow"); }

    template <class Widget>
    static Widget& part(const char* name)
    {
        return *window()->findChild<Widget*>(name);
    }

    static QWidget& canvas() { return part<QWidget>("picChart"); }

    /// The chart of the window, once it is painted.
    static QImage large()
    {
        QImage image;
        const bool isThere = QTest::qWaitFor([&] {
            image = canvas().grab().toImage();
            return !isBlank(image);
        });
        EXPECT_TRUE(isThere) << "the chart's place stays empty";
        return image;
    }

    /// The dry bulb and the humidity ratio that the tip at a place of the window's chart has.
    static std::pair<double, double> readingAt(QPointF place)
    {
        large();
        const QStringList lines = QString::fromStdString(tipAt(canvas(), place)).split('\n');
        const QStringList ratio = lines.filter("humidity ratio");
        return {lines.front().section(' ', 0, 0).toDouble(), ratio.value(0).section(' ', 0, 0).toDouble()};
    }

    static void turnWheel(QPointF place, int steps)
    {
        QWheelEvent turn(place, canvas().mapToGlobal(place), {}, QPoint(0, 120 * steps), Qt::NoButton,
                         Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(&canvas(), &turn);
        large();
    }

    static void key(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        canvas().setFocus(Qt::TabFocusReason);
        QTest::keyClick(&canvas(), key, modifiers);
        large();
    }

    static void toggle(const char* box)
    {
        QWidget& widget = part<QWidget>(box);
        QTest::mouseClick(&widget, Qt::LeftButton, Qt::NoModifier, QPoint(8, widget.height() / 2));
    }
};
