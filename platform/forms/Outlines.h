#pragma once

#include <QProxyStyle>

namespace forms {

/// The desktop's style. On a desktop with high contrast it draws the outlines of fields, buttons and frames
/// in the text's color. The toolkit derives them from the background's color, so they could hardly be seen on
/// black.
class Outlines : public QProxyStyle
{
public:
    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                            const QWidget* widget) const override;
};

} // namespace forms
