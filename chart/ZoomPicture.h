#pragma once

#include "chart/ChartPicture.h"

namespace chart {

/// The chart in its own window: with its title, and without a table of the pins, which is beside it. The
/// wheel and the keys + and - zoom, dragging and Ctrl with the arrow keys move it, Home or 0 shows the whole.
class ZoomPicture : public ChartPicture
{
public:
    explicit ZoomPicture(forms::Form& owner) : ChartPicture(owner) {}

    void drag(const QPoint& from, const QPoint& to) override;
    bool turnWheel(const QPoint& place, double steps) override;
    bool pressKey(int key, Qt::KeyboardModifiers modifiers) override;
    View view() const override;

    /// Zooms in about the middle, or about the cross hair if there is one; out if steps is negative.
    void zoom(double steps);
    using ChartPicture::zoomOut;

private:
    bool pressZoomKey(int key);
    bool pressMoveKey(int key);
    void zoomAbout(const QPointF& place, double steps);
    /// @param to  where the pointer is then
    void move(const QPointF& by, const QPointF& to);
};

} // namespace chart
