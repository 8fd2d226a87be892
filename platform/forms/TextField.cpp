#include "platform/forms/TextField.h"

#include "platform/forms/Form.h"
#include "platform/forms/LineEdit.h"

namespace forms {

TextField::TextField(Form& owner, const std::string& name)
    : Control(owner, new LineEdit(owner.area(), *this), name)
{
    QObject::connect(&as<LineEdit>(), &QLineEdit::textChanged, widget(), [this] { noteText(); });
}

/// The toolkit also signals an edit when a key replaces the selected text with the same text.
void TextField::noteText()
{
    if (knownText == text())
        return;
    knownText = text();
    raise(change);
}

std::string TextField::text() const { return as<LineEdit>().text().toStdString(); }
void TextField::setText(const std::string& text) { as<LineEdit>().setText(QString::fromStdString(text)); }

void TextField::takeFocus()
{
    Control::takeFocus();
    as<LineEdit>().selectAll();
}

void TextField::alignRight() { as<LineEdit>().setAlignment(Qt::AlignRight); }
void TextField::leaveTabOrder() { as<LineEdit>().setFocusPolicy(Qt::ClickFocus); }

bool TextField::swallows(int key)
{
    if (!keyPress)
        return false;
    raise([this, &key] { keyPress(key); });
    return key == Key::Swallowed;
}

} // namespace forms
