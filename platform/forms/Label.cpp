#include "platform/forms/Label.h"

#include "platform/forms/Form.h"

#include <QLabel>

namespace forms {

namespace {
QLabel* asLabel(const Label* label) { return static_cast<QLabel*>(label->widget()); }
} // namespace

Label::Label(Form& owner, const std::string& name, const std::string& caption)
    : Control(owner, new QLabel(owner.area()), name)
{
    asLabel(this)->setTextFormat(Qt::PlainText);
    setCaption(caption);
}

void Label::setCaption(const std::string& caption)
{
    asLabel(this)->setText(QString::fromStdString(caption));
}
std::string Label::caption() const { return asLabel(this)->text().toStdString(); }
void Label::describe(Control& control) { asLabel(this)->setBuddy(control.widget()); }

void Label::setBoxed()
{
    asLabel(this)->setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
    asLabel(this)->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    asLabel(this)->setMargin(3);
}

void Label::alignRight()
{
    asLabel(this)->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    asLabel(this)->setIndent(4);
}
void Label::center() { asLabel(this)->setAlignment(Qt::AlignCenter); }
void Label::setWrapped() { asLabel(this)->setWordWrap(true); }

void Label::setArial()
{
    QFont font({QStringLiteral("Arial"), QStringLiteral("Liberation Sans")});
    font.setPixelSize(13);
    asLabel(this)->setFont(font);
}

void Label::setPointSize(int points)
{
    QFont font = asLabel(this)->font();
    font.setPointSize(points);
    asLabel(this)->setFont(font);
}

void Label::setFontSize(int percentOfNormal, bool bold)
{
    QFont font = asLabel(this)->font();
    font.setPointSizeF(font.pointSizeF() * percentOfNormal / 100);
    font.setBold(bold);
    asLabel(this)->setFont(font);
}

} // namespace forms
