#include "platform/forms/Controls.h"

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

} // namespace

Label::Label(Form& owner, const std::string& name, const std::string& caption)
    : Control(owner, new QLabel(owner.area()), name)
{
    as<QLabel>().setTextFormat(Qt::PlainText);
    setCaption(caption);
}

void Label::setCaption(const std::string& caption) { as<QLabel>().setText(QString::fromStdString(caption)); }
std::string Label::caption() const { return as<QLabel>().text().toStdString(); }
void Label::describe(Control& control) { as<QLabel>().setBuddy(control.widget()); }

void Label::setBoxed()
{
    as<QLabel>().setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
    as<QLabel>().setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    as<QLabel>().setMargin(3);
}

void Label::alignRight()
{
    as<QLabel>().setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    as<QLabel>().setIndent(margin);
}
void Label::center() { as<QLabel>().setAlignment(Qt::AlignCenter); }
void Label::setWrapped() { as<QLabel>().setWordWrap(true); }

void Label::setArial(int pixels) { as<QLabel>().setFont(arial(pixels)); }

int Label::fittingArial() const
{
    const QLabel& label = as<QLabel>();
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
    QFont font = as<QLabel>().font();
    font.setPointSize(points);
    as<QLabel>().setFont(font);
}

void Label::setFontSize(int percentOfNormal, bool bold)
{
    QFont font = as<QLabel>().font();
    font.setPointSizeF(font.pointSizeF() * percentOfNormal / 100);
    font.setBold(bold);
    as<QLabel>().setFont(font);
}

} // namespace forms
