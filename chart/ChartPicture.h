#pragma once

#include "chart/Layout.h"
#include "platform/forms/Picture.h"

#include <optional>

namespace chart {

/// A psychrometric chart with the last run of each calculator, in the current units and at the current
/// pressure.
class ChartPicture : public forms::PictureContents
{
public:
    std::string version() const override;
    void paint(QPainter& painter, const QSize& size, const QWidget& on) override;
    std::string tipAt(const QPoint& place) const override;

private:
    View view;
    std::optional<Layout> painted; ///< without its curves
};

} // namespace chart
