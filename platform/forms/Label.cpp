#include "platform/forms/Label.h"

#include "platform/forms/Form.h"

#include <QApplication>
#include <QFontInfo>
#include <QFontMetrics>
#include <QLabel>

#include <algorithm>

namespace forms {

namespace {

constexpr int designedPixels = 13;
constexpr int margin = 4;

QFont arial(int pixels)
{
    QFont font({QStringLiteral("Arial"), QStringLiteral("Liberation Sans")});
    font.setPixelSize(pixels);
    return font;
}

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
    asLabel(this)->setIndent(margin);
}
void Label::center() { asLabel(this)->setAlignment(Qt::AlignCenter); }
void Label::setWrapped() { asLabel(this)->setWordWrap(true); }

void Label::setArial(int pixels) { asLabel(this)->setFont(arial(pixels)); }

int Label::fittingArial() const
{
    const QLabel& label = *asLabel(this);
    const int flags = label.wordWrap() ? Qt::TextWordWrap : 0;
    int pixels = std::max(designedPixels, QFontInfo(QApplication::font()).pixelSize());
    for (; pixels > designedPixels; --pixels) {
        const QFontMetrics metrics(arial(pixels));
        const QSize needed = metrics.boundingRect(label.rect(), flags, label.text()).size();
        if (needed.width() + margin <= label.width() && needed.height() <= label.height())
            break;
    }
    return pixels;
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
