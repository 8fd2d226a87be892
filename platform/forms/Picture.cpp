#include "platform/forms/Picture.h"

#include "platform/forms/Canvas.h"

#include <QAccessibleWidget>
#include <QPalette>

#include <cstdlib>

namespace forms {

namespace {

/// Without this, assistive technology treats the canvas as an empty container.
QAccessibleInterface* asGraphic(const QString& /*className*/, QObject* object)
{
    auto* const canvas = dynamic_cast<Canvas*>(object);
    return canvas == nullptr ? nullptr : new QAccessibleWidget(canvas, QAccessible::Graphic);
}

} // namespace

bool HasHighContrast(const QPalette& desktop)
{
    const int back = qGray(desktop.color(QPalette::Window).rgb());
    const int text = qGray(desktop.color(QPalette::WindowText).rgb());
    constexpr int leastDifference = 120; // green on black differs by 127
    return (back == 0 || back == 255) && std::abs(back - text) >= leastDifference;
}

Picture::Picture(Form& owner, const std::string& name, std::unique_ptr<PictureContents> contents)
    : Control(owner, new Canvas(owner, std::move(contents)), name)
{
    static const bool isInstalled = (QAccessible::installFactory(asGraphic), true);
    Q_UNUSED(isInstalled);
}

void Picture::repaint() { widget()->update(); }

} // namespace forms
