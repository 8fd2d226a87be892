#include "platform/help/HelpColours.h"

#include <algorithm>
#include <cmath>

namespace help {
namespace {

constexpr double readable = 4.5;

/// The linear light of one sRGB channel. [WCAG 2.1]
double linear(float channel)
{
    const double value = channel;
    return value <= 0.03928 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
}

double luminance(const QColor& colour)
{
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) +
           0.0722 * linear(colour.blueF());
}

/// Interpolates between two colors: 0 is the first, 1 the second.
QColor between(const QColor& from, const QColor& to, float way)
{
    return QColor::fromRgbF(std::lerp(from.redF(), to.redF(), way),
                            std::lerp(from.greenF(), to.greenF(), way),
                            std::lerp(from.blueF(), to.blueF(), way));
}

} // namespace

double Contrast(const QColor& one, const QColor& other)
{
    const auto [dark, light] = std::minmax({luminance(one), luminance(other)});
    return (light + 0.05) / (dark + 0.05);
}

QColor ReadableOn(const QColor& ground, const QColor& colour)
{
    const QColor end = Contrast(ground, Qt::white) > Contrast(ground, Qt::black) ? Qt::white : Qt::black;
    QColor tried = colour;
    for (int step = 1; step <= 10 && Contrast(tried, ground) < readable; ++step)
        tried = between(colour, end, static_cast<float>(step) / 10);
    return tried;
}

HelpColours::HelpColours(const QPalette& palette)
    : page(palette.color(QPalette::Active, QPalette::Base)),
      text(ReadableOn(page, palette.color(QPalette::Active, QPalette::Text))),
      link(ReadableOn(page, palette.color(QPalette::Active, QPalette::Link))),
      rule(between(page, text, 0.25F)),
      shade(between(page, text, 0.07F)),
      mark(between(page, QColor(255, 196, 0), 0.45F)),
      marked(ReadableOn(mark, text))
{}

QString HelpColours::styleSheet() const
{
    const QString sheet = R"(
        a { color: %1; text-decoration: underline; }
        h1 { margin-top: 4px; margin-bottom: 14px; font-weight: 600; }
        h2 { margin-top: 26px; margin-bottom: 8px; font-weight: 600; }
        p { margin-top: 6px; margin-bottom: 10px; line-height: 3px; -qt-line-height-type: line-distance; }
        li { margin-top: 3px; margin-bottom: 3px; line-height: 3px; -qt-line-height-type: line-distance; }
        table { margin-top: 8px; margin-bottom: 12px; border-color: %2; border-style: solid;
                border-collapse: collapse; }
        th { padding: 5px 9px; border-color: %2; background-color: %3; font-weight: 600; }
        td { padding: 5px 9px; border-color: %2; }
    )";
    return sheet.arg(link.name(), rule.name(), shade.name());
}

} // namespace help
