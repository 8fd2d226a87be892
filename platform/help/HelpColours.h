#pragma once

#include <QColor>
#include <QPalette>
#include <QString>

namespace help {

/// The colors of a help page, derived from the desktop's so that all text is readable on light and dark.
struct HelpColours
{
    explicit HelpColours(const QPalette& palette);
    /// The style sheet that is applied to pages before their own.
    QString styleSheet() const;

    QColor page;
    QColor text;
    QColor link;
    QColor rule;   ///< table lines
    QColor shade;  ///< background of table headings
    QColor mark;   ///< background of a search hit
    QColor marked; ///< text of a search hit
};

/// The contrast ratio of two colors, from 1 to 21. Text needs 4.5.
///     (L1 + 0.05) / (L2 + 0.05), with L the relative luminance, L1 the larger one    [WCAG 2.1]
double Contrast(const QColor& one, const QColor& other);

/// The color, moved toward black or white as far as necessary to be readable on the background.
QColor ReadableOn(const QColor& ground, const QColor& colour);

} // namespace help
