#pragma once

#include "platform/forms/Control.h"

#include <QPoint>

#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

class QPainter;
class QPalette;
class QSize;
class QWidget;

namespace forms {

/// Whether the desktop's colors ask for strong lines: text in high contrast on pure black or white.
bool HasHighContrast(const QPalette& desktop);

/// A command of a picture: an entry of its context menu, with keys that work while the picture has the focus.
struct PictureCommand
{
    std::string name;    ///< of the menu entry, for tests and tools
    std::string caption; ///< with an ampersand before its access key
    std::string keys;    ///< for example "Ctrl+C", or "Ctrl+C; Ctrl+Ins", or empty
    Handler run;
};

/// The contents of a picture. The handlers below run like those of a form.
class PictureContents
{
public:
    PictureContents() = default;
    virtual ~PictureContents() = default;
    PictureContents(const PictureContents&) = delete;
    PictureContents& operator=(const PictureContents&) = delete;

    /// Changes whenever the picture would look different at the same size, font and colors.
    virtual std::string version() const = 0;
    /// Paints the picture in the font and colors of its widget.
    virtual void paint(QPainter& painter, const QSize& size, const QWidget& on) = 0;
    /// The tip for a place on the last painted picture, or empty.
    virtual std::string tipAt(const QPoint& place) const = 0;

    /// Sets what shows a change of the contents. The picture does; after the handlers below it shows them
    /// itself.
    void onChange(Handler handler) { change = std::move(handler); }

    /// The commands of the context menu, in its order.
    virtual std::vector<PictureCommand> commands() { return {}; }
    /// The left button was pressed and released without a drag.
    virtual void click(const QPoint& /*place*/) {}
    /// A double click. Its first click was raised before it; its second is not.
    virtual void doubleClick(const QPoint& /*place*/) {}
    /// The pointer moved with the left button down.
    virtual void drag(const QPoint& /*from*/, const QPoint& /*to*/) {}
    /// The wheel turned, away from the user if steps is positive. Returns false to pass it on.
    virtual bool turnWheel(const QPoint& /*place*/, double /*steps*/) { return false; }
    /// Returns false to pass the key on.
    virtual bool pressKey(int /*key*/, Qt::KeyboardModifiers /*modifiers*/) { return false; }
    /// The place that the keys move, if any. Assistive technology reads its tip.
    virtual std::optional<QPoint> keyPlace() const { return std::nullopt; }

protected:
    /// Shows the picture anew.
    void changed()
    {
        if (change)
            change();
    }

private:
    Handler change;
};

/// A picture. Painted after the window's first frame, so it does not delay startup. Cached until its
/// contents, size, font, colors or the pixel ratio change. Shows a tip for the place under the pointer.
class Picture : public Control
{
public:
    Picture(Form& owner, const std::string& name, std::unique_ptr<PictureContents> contents);

    /// Repaints the picture if its contents have changed.
    void repaint();
};

} // namespace forms
