#include "platform/forms/Outlines.h"

#include "platform/forms/Picture.h"

#include <QPainter>
#include <QStyleOptionComplex>

namespace forms {

namespace {

/// Lines in the focus color are wider.
void outline(const QStyleOption& option, QPainter& painter)
{
    const bool hasFocus = option.state.testFlag(QStyle::State_HasFocus);
    const QColor quiet = option.palette.color(QPalette::Window).darker(140);
    const QColor strong = option.palette.color(hasFocus ? QPalette::Highlight : QPalette::WindowText);
    painter.save();
    painter.setPen(QPen(HasHighContrast(option.palette) ? strong : quiet, hasFocus ? 3 : 1));
    painter.setBrush(Qt::NoBrush);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.drawRect(QRectF(option.rect).adjusted(0.5, 0.5, -0.5, -0.5));
    painter.restore();
}

} // namespace

void Outlines::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                             const QWidget* widget) const
{
    if (element != PE_Frame) // at 150 % the toolkit leaves out sides of this one
        QProxyStyle::drawPrimitive(element, option, painter, widget);
    const bool isOutlined = element == PE_FrameLineEdit || element == PE_PanelButtonCommand ||
                            element == PE_FrameGroupBox || element == PE_IndicatorCheckBox;
    if (element == PE_Frame || (isOutlined && HasHighContrast(option->palette)))
        outline(*option, *painter);
}

void Outlines::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                                  QPainter* painter, const QWidget* widget) const
{
    QProxyStyle::drawComplexControl(control, option, painter, widget);
    if (control == CC_ComboBox && HasHighContrast(option->palette))
        outline(*option, *painter);
}

} // namespace forms
