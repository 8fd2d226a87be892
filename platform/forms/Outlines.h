#pragma once

#include <QProxyStyle>

namespace forms {

/// The desktop's style, with two changes. On a desktop with high contrast, the outlines of fields, buttons
/// and frames have the text's color; the toolkit derives them from the background, so they could hardly be
/// seen on black. The frame of a boxed label has all its sides in every scaling.
class Outlines : public QProxyStyle
{
public:
    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                            const QWidget* widget) const override;
};

} // namespace forms
