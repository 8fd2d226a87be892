#include "platform/forms/Picture.h"

#include "platform/forms/Form.h"

#include <QAccessibleWidget>
#include <QAction>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QFont>
#include <QGuiApplication>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QPainter>
#include <QPalette>
#include <QPixmap>
#include <QTimer>
#include <QToolTip>
#include <QWidget>

#include <cstdlib>

namespace forms {

namespace {

/// Everything that the cached picture depends on.
struct Key
{
    QSize size;
    qreal scale = 0;
    qint64 palette = 0;
    QFont font;
    std::string version;

    friend bool operator==(const Key&, const Key&) = default;
};

class Canvas : public QWidget
{
public:
    Canvas(Form& owner, std::unique_ptr<PictureContents> shown)
        : QWidget(owner.area()), form(owner), contents(std::move(shown))
    {
        setFocusPolicy(Qt::TabFocus);
    }

protected:
    void paintEvent(QPaintEvent* /*event*/) override
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

    bool event(QEvent* event) override
    {
        if (event->type() != QEvent::ToolTip)
            return QWidget::event(event);
        const auto& help = static_cast<QHelpEvent&>(*event);
        QString tip;
        RunHandler(form, [&] { tip = QString::fromStdString(contents->tipAt(help.pos())); });
        QToolTip::showText(help.globalPos(), tip, this, QRect(help.pos(), QSize(1, 1)));
        return true;
    }

    void contextMenuEvent(QContextMenuEvent* event) override
    {
        auto* const menu = new QMenu(this);
        menu->setAttribute(Qt::WA_DeleteOnClose);
        QAction* const entry = menu->addAction("&Copy Picture", this, [this] { copy(); });
        entry->setObjectName("mnuCopyPicture");
        menu->popup(event->globalPos());
    }

    void keyPressEvent(QKeyEvent* event) override
    {
        if (event->matches(QKeySequence::Copy))
            copy();
        else
            QWidget::keyPressEvent(event);
    }

private:
    const QPixmap& upToDate()
    {
        Key key{size(), devicePixelRatioF(), palette().cacheKey(), font(), contents->version()};
        if (key != keptFor) {
            kept = QPixmap::fromImage(rendered());
            keptFor = std::move(key);
        }
        return kept;
    }

    QImage rendered()
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
    void paintFocus(QPainter& painter)
    {
        constexpr int width = 2;
        painter.setPen(
            QPen(palette().color(QPalette::Highlight), width, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
        painter.drawRect(rect().adjusted(1, 1, -1, -1));
    }

    /// Paints the background first: newer versions of the toolkit draw letters differently on an opaque one.
    void copy()
    {
        QImage picture = rendered();
        QPainter painter(&picture);
        painter.setCompositionMode(QPainter::CompositionMode_DestinationOver);
        painter.fillRect(rect(), palette().color(QPalette::Window));
        painter.end();
        QGuiApplication::clipboard()->setImage(picture);
    }

    Form& form;
    std::unique_ptr<PictureContents> contents;
    bool isDue = false;
    QPixmap kept;
    Key keptFor;
};

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
