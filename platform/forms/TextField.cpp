#include "platform/forms/TextField.h"

#include "platform/forms/Form.h"
#include "platform/forms/LineEdit.h"

namespace forms {

namespace {
LineEdit* asEdit(const TextField* field) { return static_cast<LineEdit*>(field->widget()); }
} // namespace

TextField::TextField(Form& owner, const std::string& name)
    : Control(owner, new LineEdit(owner.area(), *this), name)
{
    QObject::connect(asEdit(this), &QLineEdit::textChanged, asEdit(this), [this] { noteText(); });
}

/// The toolkit also signals an edit when a key replaces the selected text with the same text.
void TextField::noteText()
{
    if (knownText == text())
        return;
    knownText = text();
    raise(change);
}

std::string TextField::text() const { return asEdit(this)->text().toStdString(); }
void TextField::setText(const std::string& text) { asEdit(this)->setText(QString::fromStdString(text)); }

void TextField::takeFocus()
{
    Control::takeFocus();
    asEdit(this)->selectAll();
}

void TextField::alignRight() { asEdit(this)->setAlignment(Qt::AlignRight); }
void TextField::leaveTabOrder() { asEdit(this)->setFocusPolicy(Qt::ClickFocus); }

bool TextField::swallows(int key)
{
    if (!keyPress)
        return false;
    raise([this, &key] { keyPress(key); });
    return key == Key::Swallowed;
}

} // namespace forms
