#include "platform/forms/Frame.h"

#include "platform/forms/Form.h"

#include <QGroupBox>

namespace forms {

namespace {
QGroupBox* asGroup(const Frame* frame) { return static_cast<QGroupBox*>(frame->widget()); }
} // namespace

Frame::Frame(Form& owner, const std::string& name, const std::string& caption)
    : Control(owner, new QGroupBox(owner.area()), name)
{
    setCaption(caption);
}

void Frame::setCaption(const std::string& caption)
{
    asGroup(this)->setTitle(QString::fromStdString(caption));
}
std::string Frame::caption() const { return asGroup(this)->title().toStdString(); }

void Frame::setBold() { asGroup(this)->setStyleSheet("QGroupBox { font-weight: bold; }"); }

void Frame::showCaptionAlone()
{
    // Aligns the caption with those of other frames.
    widget()->setStyleSheet(widget()->styleSheet() +
                            "QGroupBox { border: none; }"
                            "QGroupBox::title { subcontrol-origin: margin; left: 0px; }");
    widget()->setFixedHeight(widget()->fontMetrics().height() + 4);
}

} // namespace forms
