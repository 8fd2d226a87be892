#include "platform/forms/CheckBox.h"

#include "platform/forms/Form.h"

#include <QCheckBox>

#include <utility>

namespace forms {

namespace {
QCheckBox* asBox(const CheckBox* box) { return static_cast<QCheckBox*>(box->widget()); }
} // namespace

CheckBox::CheckBox(Form& owner, const std::string& name, const std::string& caption, Handler onClick)
    : Control(owner, new QCheckBox(QString::fromStdString(caption), owner.area()), name),
      click(std::move(onClick))
{
    QObject::connect(asBox(this), &QCheckBox::clicked, asBox(this), [this] { raise(click); });
}

bool CheckBox::isChecked() const { return asBox(this)->isChecked(); }
void CheckBox::setChecked(bool checked) { asBox(this)->setChecked(checked); }

} // namespace forms
