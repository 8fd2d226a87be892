#include "chart/Export.h"

#include "chart/Layout.h"
#include "chart/Painter.h"
#include "chart/States.h"

#include <QApplication>
#include <QBuffer>
#include <QPainter>
#include <QPdfWriter>
#include <QSvgGenerator>

namespace chart {
namespace {

constexpr QSizeF paper(960, 672); // 10 by 7 inches
constexpr double unitsPerInch = 96;
constexpr double millimetresPerInch = 25.4;
constexpr int dotsPerInch = 300;

/// Without what belongs to the screen.
View onPaper(View view)
{
    view.title = ChartTitle();
    view.crossHair.reset();
    return view;
}

/// The chart with a margin, on white.
void paintPicture(QPainter& painter, const View& view)
{
    constexpr double margin = 18;
    painter.fillRect(QRectF({}, paper), Qt::white);
    painter.translate(margin, margin);
    PaintOnPaper(painter, paper - QSizeF(2 * margin, 2 * margin), view);
}

QByteArray pdfOf(const View& view)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    QPdfWriter writer(&buffer);
    writer.setPageSize(QPageSize(paper / unitsPerInch, QPageSize::Inch, {}, QPageSize::ExactMatch));
    writer.setPageMargins({});
    writer.setTitle(ChartTitle());
    writer.setCreator(QCoreApplication::applicationName());
    QPainter painter(&writer);
    painter.scale(writer.resolution() / unitsPerInch, writer.resolution() / unitsPerInch);
    paintPicture(painter, view);
    painter.end();
    return bytes;
}

QByteArray svgOf(const View& view)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    QSvgGenerator generator;
    generator.setOutputDevice(&buffer);
    generator.setResolution(static_cast<int>(unitsPerInch));
    generator.setSize(paper.toSize());
    generator.setViewBox(QRectF({}, paper));
    generator.setTitle(ChartTitle());
    generator.setDescription(QCoreApplication::applicationName());
    QPainter painter(&generator);
    paintPicture(painter, view);
    painter.end();
    return bytes;
}

QByteArray pngOf(const View& view)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    PictureOf(view).save(&buffer, "PNG");
    return bytes;
}

} // namespace

const std::vector<PictureFormat>& PictureFormats()
{
    static const std::vector<PictureFormat> formats{
        {"pdf", "PDF document", pdfOf}, {"svg", "SVG drawing", svgOf}, {"png", "PNG picture", pngOf}};
    return formats;
}

QImage PictureOf(const View& view)
{
    constexpr double dotsPerUnit = dotsPerInch / unitsPerInch;
    QImage picture((paper * dotsPerUnit).toSize(), QImage::Format_RGB32);
    const int dotsPerMetre = qRound(dotsPerInch * 1000 / millimetresPerInch);
    picture.setDotsPerMeterX(dotsPerMetre);
    picture.setDotsPerMeterY(dotsPerMetre);
    picture.fill(Qt::white);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(dotsPerUnit, dotsPerUnit);
    paintPicture(painter, view);
    return picture;
}

void PaintOnPaper(QPainter& painter, const QSizeF& size, const View& view)
{
    Paint(painter, Layout(size, PaperFont(), onPaper(view)), PaperPalette());
}

QPalette PaperPalette()
{
    QPalette palette(Qt::black, Qt::white, Qt::white, Qt::black, Qt::gray, Qt::black, Qt::white);
    palette.setColor(QPalette::Window, QColor(254, 254, 254)); // pure white would ask for strong lines
    return palette;
}

QFont PaperFont()
{
    constexpr int pixels = 14;
    QFont font = QApplication::font();
    font.setPixelSize(pixels);
    // The smallest spacing, too small to see. It stops the toolkit from drawing "fi" as a ligature, so that a
    // search for "Specific" succeeds.
    font.setLetterSpacing(QFont::AbsoluteSpacing, 1.0 / 64);
    return font;
}

} // namespace chart
