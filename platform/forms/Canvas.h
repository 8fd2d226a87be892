#pragma once

#include "platform/forms/Picture.h"

#include <QFont>
#include <QPixmap>
#include <QWidget>

namespace forms {

/// The widget of a picture. It paints the contents, caches them, and passes the mouse and the keys to them.
class Canvas : public QWidget
{
public:
    Canvas(Form& owner, std::unique_ptr<PictureContents> shown);

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
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

    const QPixmap& upToDate();
    QImage rendered();
    void paintFocus(QPainter& painter);
    void run(const Handler& handler);
    QString tipAt(const QPoint& place);
    void tellKeyPlace();
    bool runCommand(const QKeyEvent& event);

    Form& form;
    std::unique_ptr<PictureContents> contents;
    bool isDue = false;
    QPixmap kept;
    Key keptFor;
    std::optional<QPoint> pressedAt; // until a drag begins
    std::optional<QPoint> draggedTo;
};

} // namespace forms
