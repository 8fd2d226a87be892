#pragma once

#include "platform/forms/Control.h"

class QPainter;
class QRect;

/// A picture that is painted by a function; asked for again whenever its size or the palette changes.
class Picture : public Control
{
public:
    using Painter = std::function<void(QPainter& painter, const QRect& place)>;

    Picture(Form& owner, const std::string& name, Painter painter);

    /// Has the picture painted anew, because what it shows has changed.
    void repaint();
};
