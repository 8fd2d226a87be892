#pragma once

#include "platform/forms/Control.h"

#include <memory>
#include <string>

class QPainter;
class QPalette;
class QPoint;
class QSize;
class QWidget;

namespace forms {

/// Whether the desktop's colors ask for strong lines: text in high contrast on pure black or white.
bool HasHighContrast(const QPalette& desktop);

/// The contents of a picture.
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
};

/// A picture. Painted after the window's first frame, so it does not delay startup. Cached until its
/// contents, size, font, colors or the pixel ratio change. Shows a tip for the place under the pointer. The
/// context menu or Ctrl+C copies it to the clipboard.
class Picture : public Control
{
public:
    Picture(Form& owner, const std::string& name, std::unique_ptr<PictureContents> contents);

    /// Repaints the picture if its contents have changed.
    void repaint();
};

} // namespace forms
