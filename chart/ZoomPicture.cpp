#include "chart/ZoomPicture.h"

#include "chart/States.h"

#include <cmath>

namespace chart {

View ZoomPicture::view() const
{
    View shown = ChartPicture::view();
    shown.title = ChartTitle();
    shown.hasPinTable = false;
    return shown;
}

void ZoomPicture::drag(const QPoint& from, const QPoint& to)
{
    if (layout() != nullptr)
        move(to - from, to);
}

bool ZoomPicture::turnWheel(const QPoint& place, double steps)
{
    if (layout() == nullptr || !layout()->plane.plot.contains(place))
        return false;
    zoomAbout(place, steps);
    return true;
}

bool ZoomPicture::pressKey(int key, Qt::KeyboardModifiers modifiers)
{
    if (layout() == nullptr)
        return false;
    if (modifiers == Qt::ControlModifier)
        return pressMoveKey(key);
    return pressZoomKey(key) || ChartPicture::pressKey(key, modifiers);
}

bool ZoomPicture::pressZoomKey(int key)
{
    switch (key) {
    case Qt::Key_Plus:
    case Qt::Key_Equal: // + without Shift
        zoom(1);
        return true;
    case Qt::Key_Minus:
        zoom(-1);
        return true;
    case Qt::Key_Home:
    case Qt::Key_0:
        zoomOut();
        return true;
    default:
        return false;
    }
}

/// The arrow keys move the part that is seen, so the chart goes the other way.
bool ZoomPicture::pressMoveKey(int key)
{
    constexpr double part = 0.1;
    const double across = (key == Qt::Key_Left ? part : key == Qt::Key_Right ? -part : 0);
    const double up = (key == Qt::Key_Up ? part : key == Qt::Key_Down ? -part : 0);
    if (across == 0 && up == 0)
        return false;
    const QRectF& plot = layout()->plane.plot;
    move({across * plot.width(), up * plot.height()}, plot.center());
    return true;
}

void ZoomPicture::zoom(double steps)
{
    if (layout() == nullptr)
        return;
    const std::optional<QPoint> middle = keyPlace();
    zoomAbout(middle ? QPointF(*middle) : layout()->plane.plot.center(), steps);
}

void ZoomPicture::zoomAbout(const QPointF& place, double steps)
{
    constexpr double factorOfAStep = 1.25;
    zoomTo(layout()->plane.zoomed(place, std::pow(factorOfAStep, steps)), place);
}

void ZoomPicture::move(const QPointF& by, const QPointF& to) { zoomTo(layout()->plane.moved(by), to); }

} // namespace chart
