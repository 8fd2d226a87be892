#include "platform/forms/Controls.h"

#include "platform/forms/Form.h"

#include <QComboBox>
#include <QGroupBox>
#include <QPushButton>
#include <QShortcutEvent>
#include <QSignalBlocker>

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

} // namespace

Button::Button(Form& owner, const std::string& name, const std::string& caption, Handler onClick)
    : Control(owner, new PushButton(owner.area()), name), click(std::move(onClick))
{
    setCaption(caption);
    as<QPushButton>().setAutoDefault(true); // Enter presses the focused button
    QObject::connect(&as<QPushButton>(), &QPushButton::clicked, widget(), [this] { raise(click); });
}

void Button::setCaption(const std::string& caption)
{
    as<QPushButton>().setText(QString::fromStdString(caption));
}
std::string Button::caption() const { return as<QPushButton>().text().toStdString(); }
void Button::press() { as<QPushButton>().click(); }
void Button::showAsDefault() { as<QPushButton>().setDefault(true); }

DropDownList::DropDownList(Form& owner, const std::string& name)
    : Control(owner, new QComboBox(owner.area()), name)
{
    auto* const combo = &as<QComboBox>();
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
    const QSignalBlocker noClick(widget()); // the toolkit selects the first entry itself
    const int chosen = as<QComboBox>().currentIndex();
    as<QComboBox>().addItem(QString::fromStdString(entry));
    as<QComboBox>().setCurrentIndex(chosen);
}

void DropDownList::select(int index)
{
    {
        const QSignalBlocker noClick(widget());
        as<QComboBox>().setCurrentIndex(index);
    }
    raise(click);
}

std::string DropDownList::text() const { return as<QComboBox>().currentText().toStdString(); }

Frame::Frame(Form& owner, const std::string& name, const std::string& caption)
    : Control(owner, new QGroupBox(owner.area()), name)
{
    setCaption(caption);
}

void Frame::setCaption(const std::string& caption)
{
    as<QGroupBox>().setTitle(QString::fromStdString(caption));
}
std::string Frame::caption() const { return as<QGroupBox>().title().toStdString(); }

void Frame::setBold() { as<QGroupBox>().setStyleSheet("QGroupBox { font-weight: bold; }"); }

void Frame::showCaptionAlone()
{
    // Aligns the caption with those of other frames.
    widget()->setStyleSheet(widget()->styleSheet() +
                            "QGroupBox { border: none; }"
                            "QGroupBox::title { subcontrol-origin: margin; left: 0px; }");
    widget()->setFixedHeight(widget()->fontMetrics().height() + 4);
}

Rule::Rule(Form& owner, const std::string& name) : Control(owner, new QFrame(owner.area()), name)
{
    as<QFrame>().setFrameShape(QFrame::HLine);
    as<QFrame>().setFrameShadow(QFrame::Plain);
}

} // namespace forms
