#pragma once

#include <QColor>
#include <QPalette>
#include <QString>

namespace help {

/// The colours of a help page, made from those of the desktop so that all can be read on a light and on a
/// dark one.
struct HelpColours
{
    explicit HelpColours(const QPalette& palette);
    /// The style sheet that pages are shown with, before their own.
    QString styleSheet() const;

    QColor page;
    QColor text;
    QColor link;
    QColor rule;   ///< lines of tables
    QColor shade;  ///< behind the headings of tables
    QColor mark;   ///< behind a hit of a search
    QColor marked; ///< its text
};

/// How well a colour can be read on another, from 1 to 21. Text wants 4.5.
///     (L1 + 0.05) / (L2 + 0.05), with L the relative luminance, L1 the lighter one    [WCAG 2.1]
double Contrast(const QColor& one, const QColor& other);

/// The colour, brought as far towards black or white as it needs for text on the ground.
QColor ReadableOn(const QColor& ground, const QColor& colour);

} // namespace help
