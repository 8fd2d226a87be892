#pragma once

class QPainter;
class QPalette;
struct ChartLayout;

/// Paints a chart in colours that are readable on the desktop's, light or dark. Around the plot the window
/// shows through.
void PaintChart(QPainter& painter, const ChartLayout& chart, const QPalette& palette);
