#include "platform/forms/Button.h"

#include "platform/forms/Form.h"

#include <QPushButton>
#include <QShortcutEvent>

namespace forms {

namespace {

/// A push button whose access key presses it at once. The toolkit's button animates first.
class PushButton : public QPushButton
{
public:
    using QPushButton::QPushButton;

protected:
    bool event(QEvent* event) override
    {
        if (event->type() != QEvent::Shortcut)
            return QPushButton::event(event);
        setFocus(Qt::ShortcutFocusReason);
        if (!static_cast<QShortcutEvent*>(event)->isAmbiguous())
            click();
        return true;
    }
};

QPushButton* asButton(const Button* button) { return static_cast<QPushButton*>(button->widget()); }

} // namespace

Button::Button(Form& owner, const std::string& name, const std::string& caption, Handler onClick)
    : Control(owner, new PushButton(owner.area()), name), click(std::move(onClick))
{
    setCaption(caption);
    asButton(this)->setAutoDefault(true); // Enter presses the focused button
    QObject::connect(asButton(this), &QPushButton::clicked, asButton(this), [this] { raise(click); });
}

void Button::setCaption(const std::string& caption)
{
    asButton(this)->setText(QString::fromStdString(caption));
}
std::string Button::caption() const { return asButton(this)->text().toStdString(); }
void Button::press() { asButton(this)->click(); }
void Button::showAsDefault() { asButton(this)->setDefault(true); }

} // namespace forms
