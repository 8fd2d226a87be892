#pragma once

#include "shell/chart/ChartCurves.h"

#include <QColor>
#include <QPalette>
#include <QPen>

#include <optional>

/// The chart's colours on a light or on a dark desktop.
class ChartColours
{
public:
    explicit ChartColours(const QPalette& desktop);

    QColor paper() const { return palette.color(QPalette::Base); }
    QPen pen(ChartFamily family) const;
    QColor axis() const;
    /// Of a family's figures; without a family, of plain text.
    QColor text(const std::optional<ChartFamily>& family) const;
    /// Of a calculator's states and processes.
    QColor run(std::size_t calculator) const;

private:
    QPalette palette;
    bool isDark;
};
