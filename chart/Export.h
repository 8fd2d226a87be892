#pragma once

#include "chart/View.h"

#include <QByteArray>
#include <QImage>
#include <QPalette>
#include <QSizeF>

#include <vector>

class QPainter;

namespace chart {

/// A kind of file for a picture.
struct PictureFormat
{
    const char* suffix;
    const char* words; ///< in the save dialog
    QByteArray (*bytes)(const View&);
};

/// PDF, SVG and PNG.
const std::vector<PictureFormat>& PictureFormats();

/// The chart on white paper with its title: 10 by 7 inches at 300 dots per inch.
QImage PictureOf(const View& view);

/// Paints the chart for white paper, whatever the colors of the desktop.
/// @param size  in units of 1/96 inch
void PaintOnPaper(QPainter& painter, const QSizeF& size, const View& view);

/// Black on white, and the font of the chart on paper, in units of 1/96 inch.
QPalette PaperPalette();
QFont PaperFont();

} // namespace chart
