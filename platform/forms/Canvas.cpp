#include "platform/forms/Canvas.h"

#include "platform/forms/Form.h"

#include <QAccessible>
#include <QAction>
#include <QApplication>
#include <QContextMenuEvent>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QPainter>
#include <QTimer>
#include <QToolTip>

#include <algorithm>
#include <utility>

namespace forms {

Canvas::Canvas(Form& owner, std::unique_ptr<PictureContents> shown)
    : QWidget(owner.area()), form(owner), contents(std::move(shown))
{
    setFocusPolicy(Qt::StrongFocus);
    contents->onChange([this] { update(); });
}

/// Runs a handler of the contents, and shows what it changed.
void Canvas::run(const Handler& handler)
{
    RunHandler(form, handler);
    update();
}

bool Canvas::event(QEvent* event)
{
    if (event->type() != QEvent::ToolTip)
        return QWidget::event(event);
    const auto& help = static_cast<QHelpEvent&>(*event);
    QToolTip::showText(help.globalPos(), tipAt(help.pos()), this, QRect(help.pos(), QSize(1, 1)));
    return true;
}

QString Canvas::tipAt(const QPoint& place)
{
    QString tip;
    RunHandler(form, [&] { tip = QString::fromStdString(contents->tipAt(place)); });
    return tip;
}

void Canvas::paintEvent(QPaintEvent* /*event*/)
{
    if (!isDue) {
        QTimer::singleShot(0, this, [this] {
            isDue = true;
            update();
        });
        return;
    }
    QPainter painter(this);
    painter.drawPixmap(0, 0, upToDate());
    if (hasFocus())
        paintFocus(painter);
}

const QPixmap& Canvas::upToDate()
{
    Key key{size(), devicePixelRatioF(), palette().cacheKey(), font(), contents->version()};
    if (key != keptFor) {
        kept = QPixmap::fromImage(rendered());
        keptFor = std::move(key);
    }
    return kept;
}

QImage Canvas::rendered()
{
    QImage picture(size() * devicePixelRatioF(), QImage::Format_ARGB32_Premultiplied);
    picture.setDevicePixelRatio(devicePixelRatioF());
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    RunHandler(form, [&] { contents->paint(painter, size(), *this); });
    return picture;
}

/// A line around the picture. The style's focus rectangle would tint it.
void Canvas::paintFocus(QPainter& painter)
{
    constexpr int width = 2;
    painter.setPen(
        QPen(palette().color(QPalette::Highlight), width, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
    painter.drawRect(rect().adjusted(1, 1, -1, -1));
}

void Canvas::contextMenuEvent(QContextMenuEvent* event)
{
    const std::vector<PictureCommand> commands = contents->commands();
    if (commands.empty())
        return;
    auto* const menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    for (const PictureCommand& command : commands) {
        QAction* const entry = menu->addAction(QString::fromStdString(command.caption), this,
                                               [this, handler = command.run] { run(handler); });
        entry->setObjectName(QString::fromStdString(command.name));
        entry->setShortcuts(QKeySequence::listFromString(QString::fromStdString(command.keys)));
        entry->setShortcutVisibleInContextMenu(true);
    }
    menu->popup(event->globalPos());
}

void Canvas::mousePressEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton)
        pressedAt = event->pos();
    else
        QWidget::mousePressEvent(event);
}

void Canvas::mouseMoveEvent(QMouseEvent* event)
{
    if (pressedAt && (event->pos() - *pressedAt).manhattanLength() >= QApplication::startDragDistance())
        draggedTo = std::exchange(pressedAt, std::nullopt);
    if (!draggedTo)
        return;
    const QPoint from = *std::exchange(draggedTo, event->pos());
    run([&] { contents->drag(from, event->pos()); });
}

void Canvas::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton)
        return;
    draggedTo.reset();
    if (std::exchange(pressedAt, std::nullopt))
        run([&] { contents->click(event->pos()); });
}

void Canvas::mouseDoubleClickEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton)
        run([&] { contents->doubleClick(event->pos()); });
}

void Canvas::wheelEvent(QWheelEvent* event)
{
    constexpr double unitsOfAStep = 120;
    const double steps = event->angleDelta().y() / unitsOfAStep;
    bool isDone = false;
    run([&] { isDone = contents->turnWheel(event->position().toPoint(), steps); });
    event->setAccepted(isDone);
}

void Canvas::keyPressEvent(QKeyEvent* event)
{
    if (runCommand(*event))
        return;
    bool isDone = false;
    run([&] { isDone = contents->pressKey(event->key(), event->modifiers()); });
    if (isDone)
        tellKeyPlace();
    else
        QWidget::keyPressEvent(event);
}

bool Canvas::runCommand(const QKeyEvent& event)
{
    const QKeySequence pressed(event.keyCombination());
    const std::vector<PictureCommand> commands = contents->commands();
    const auto command = std::ranges::find_if(commands, [&pressed](const PictureCommand& each) {
        return QKeySequence::listFromString(QString::fromStdString(each.keys)).contains(pressed);
    });
    if (command == commands.end())
        return false;
    run(command->run);
    return true;
}

/// Describes the place that the keys moved to assistive technology.
void Canvas::tellKeyPlace()
{
    const std::optional<QPoint> place = contents->keyPlace();
    const QString tip = place ? tipAt(*place) : QString();
    if (tip == accessibleDescription())
        return;
    setAccessibleDescription(tip);
    QAccessibleEvent changed(this, QAccessible::DescriptionChanged);
    QAccessible::updateAccessibility(&changed);
}

} // namespace forms
