#include "chart/Lettering.h"

#include <cmath>

namespace chart {
namespace {

constexpr double fontScale = 0.85; // times the size of the window's font
constexpr double titleScale = 1.4; // times the size of the chart's font
constexpr double padding = 4;      // of a label, left and right together

QFont scaled(const QFont& from, double scale)
{
    QFont font = from;
    if (font.pointSizeF() > 0)
        font.setPointSizeF(font.pointSizeF() * scale);
    else
        font.setPixelSize(static_cast<int>(std::lround(font.pixelSize() * scale)));
    font.setHintingPreference(QFont::PreferNoHinting); // most of the labels are rotated
    return font;
}

} // namespace

double Lettering::width(const QString& text) const
{
    double sum = 0;
    for (const QChar letter : text) {
        auto found = widths.constFind(letter);
        if (found == widths.constEnd())
            found = widths.insert(letter, metrics.horizontalAdvance(letter));
        sum += *found;
    }
    return sum;
}

Label Lettering::label(const QString& text, std::optional<Family> family) const
{
    Label label{.text = text, .family = family};
    label.textWidth = width(text);
    label.size = {label.textWidth + padding, height()};
    return label;
}

QFont FontOfChart(const QFont& widgetFont) { return scaled(widgetFont, fontScale); }

QFont FontOfTitle(const QFont& fontOfChart)
{
    QFont font = scaled(fontOfChart, titleScale);
    font.setBold(true);
    return font;
}

} // namespace chart
