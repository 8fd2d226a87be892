#include "platform/forms/DropDownList.h"

#include "platform/forms/Form.h"

#include <QComboBox>
#include <QSignalBlocker>

namespace forms {

namespace {
QComboBox* asCombo(const DropDownList* list) { return static_cast<QComboBox*>(list->widget()); }
} // namespace

DropDownList::DropDownList(Form& owner, const std::string& name)
    : Control(owner, new QComboBox(owner.area()), name)
{
    QComboBox* const combo = asCombo(this);
    QObject::connect(combo, &QComboBox::currentIndexChanged, combo, [this] {
        raisedByChange = true;
        raise(click);
    });
    // When the user picks an entry, the toolkit signals a change of index, then an activation. If the entry
    // was already chosen, only the activation.
    QObject::connect(combo, &QComboBox::activated, combo, [this] {
        if (!raisedByChange)
            raise(click);
        raisedByChange = false;
    });
}

void DropDownList::addItem(const std::string& entry)
{
    const QSignalBlocker noClick(asCombo(this)); // the toolkit selects the first entry itself
    const int chosen = asCombo(this)->currentIndex();
    asCombo(this)->addItem(QString::fromStdString(entry));
    asCombo(this)->setCurrentIndex(chosen);
}

void DropDownList::select(int index)
{
    {
        const QSignalBlocker noClick(asCombo(this));
        asCombo(this)->setCurrentIndex(index);
    }
    raise(click);
}

std::string DropDownList::text() const { return asCombo(this)->currentText().toStdString(); }

} // namespace forms
