#include "platform/forms/Control.h"

#include "platform/forms/Form.h"

#include <QPalette>
#include <QWidget>

namespace forms {

namespace {

QColor toQt(Colour colour) { return {colour.red, colour.green, colour.blue}; }

Colour fromQt(const QColor& colour)
{
    return {static_cast<std::uint8_t>(colour.red()), static_cast<std::uint8_t>(colour.green()),
            static_cast<std::uint8_t>(colour.blue())};
}

/// Black or white, depending on the brightness of the background. The desktop's text color could be either.
QColor readableOn(const QColor& back) { return qGray(back.rgb()) > 127 ? Qt::black : Qt::white; }

} // namespace

Control::Control(Form& owner, QWidget* widget, const std::string& name) : form(owner), theWidget(widget)
{
    theWidget->setObjectName(QString::fromStdString(name));
}

void Control::setEnabled(bool enabled)
{
    form.noteEnabling(*theWidget, enabled);
    theWidget->setEnabled(enabled);
}

bool Control::isEnabled() const { return theWidget->isEnabled(); }
void Control::setVisible(bool visible) { theWidget->setVisible(visible); }
void Control::takeFocus() { form.focusOn(*theWidget); }

void Control::place(Twips left, Twips top, Twips width, Twips height)
{
    theWidget->setGeometry(ToPixels(left), ToPixels(top), ToPixels(width), ToPixels(height));
}

void Control::setBackColour(Colour colour)
{
    QPalette palette = theWidget->palette();
    palette.setColor(theWidget->backgroundRole(), toQt(colour));
    if (!hasOwnForeColour)
        palette.setColor(theWidget->foregroundRole(), readableOn(toQt(colour)));
    theWidget->setPalette(palette);
    theWidget->setAutoFillBackground(true);
}

void Control::setForeColour(Colour colour)
{
    QPalette palette = theWidget->palette();
    palette.setColor(theWidget->foregroundRole(), toQt(colour));
    theWidget->setPalette(palette);
    hasOwnForeColour = true;
}

Colour Control::backColour() const { return fromQt(theWidget->palette().color(theWidget->backgroundRole())); }
Colour Control::foreColour() const { return fromQt(theWidget->palette().color(theWidget->foregroundRole())); }

void Control::setToolTip(const std::string& tip) { theWidget->setToolTip(QString::fromStdString(tip)); }

void Control::setAccessibleName(const std::string& name)
{
    theWidget->setAccessibleName(QString::fromStdString(name));
}

void Control::raise(const Handler& handler)
{
    if (handler)
        RunHandler(form, handler);
}

} // namespace forms
