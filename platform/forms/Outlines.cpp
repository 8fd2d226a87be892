#include "platform/forms/Outlines.h"

#include "platform/forms/Picture.h"

#include <QPainter>
#include <QStyleOptionComplex>

namespace forms {

namespace {

void outline(const QStyleOption& option, QPainter& painter)
{
    if (!HasHighContrast(option.palette))
        return;
    painter.save();
    painter.setPen(option.palette.color(QPalette::WindowText));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(option.rect.adjusted(0, 0, -1, -1));
    painter.restore();
}

} // namespace

void Outlines::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                             const QWidget* widget) const
{
    QProxyStyle::drawPrimitive(element, option, painter, widget);
    if (element == PE_FrameLineEdit || element == PE_PanelButtonCommand || element == PE_FrameGroupBox)
        outline(*option, *painter);
}

void Outlines::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                                  QPainter* painter, const QWidget* widget) const
{
    QProxyStyle::drawComplexControl(control, option, painter, widget);
    if (control == CC_ComboBox)
        outline(*option, *painter);
}

} // namespace forms
