#pragma once

#include "chart/Labels.h"

#include <QFont>
#include <QFontMetricsF>
#include <QHash>

namespace chart {

/// The letters of the chart, and the sizes of texts in them.
class Lettering
{
public:
    explicit Lettering(const QFont& font) : metrics(font) {}

    /// Of a line of text.
    double height() const { return metrics.height(); }
    /// The sum of the letters' widths. Much faster than to lay out the text.
    double width(const QString& text) const;
    /// A label with a little space around its text.
    Label label(const QString& text, std::optional<Family> family = {}) const;

private:
    QFontMetricsF metrics;
    mutable QHash<QChar, double> widths;
};

/// The font of the chart in a window with that font.
QFont FontOfChart(const QFont& widgetFont);
/// The font of the title above the chart.
QFont FontOfTitle(const QFont& fontOfChart);

} // namespace chart
