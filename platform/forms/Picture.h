#pragma once

#include "platform/forms/Control.h"

#include <memory>
#include <string>

class QPainter;
class QPoint;
class QSize;
class QWidget;

namespace forms {

/// What a picture shows.
class PictureContents
{
public:
    PictureContents() = default;
    virtual ~PictureContents() = default;
    PictureContents(const PictureContents&) = delete;
    PictureContents& operator=(const PictureContents&) = delete;

    /// Another text whenever the picture would come out differently at the same size, font and colours.
    virtual std::string version() const = 0;
    /// Paints the picture in the font and colours of the widget that it stands on.
    virtual void paint(QPainter& painter, const QSize& size, const QWidget& on) = 0;
    /// What is to be said about a place on the picture as painted last; nothing, where empty.
    virtual std::string tipAt(const QPoint& place) const = 0;
};

/// A picture. It costs the first picture of its window nothing: its own comes right after that, and is kept
/// until its contents, size, font, colours or the screen's scaling change. It tells about the place under the
/// pointer, and copies itself to the clipboard by its context menu or Ctrl+C.
class Picture : public Control
{
public:
    Picture(Form& owner, const std::string& name, std::unique_ptr<PictureContents> contents);

    /// Looks whether what the picture shows has changed.
    void repaint();
};

} // namespace forms
