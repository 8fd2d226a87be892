#include "platform/forms/Picture.h"

#include "platform/forms/Form.h"

#include <QPainter>
#include <QWidget>

namespace {

class Canvas : public QWidget
{
public:
    Canvas(QWidget* parent, Picture::Painter painter) : QWidget(parent), paint(std::move(painter)) {}

protected:
    void paintEvent(QPaintEvent* /*event*/) override
    {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        paint(painter, rect());
    }

private:
    Picture::Painter paint;
};

} // namespace

Picture::Picture(Form& owner, const std::string& name, Painter painter)
    : Control(owner, new Canvas(owner.area(), std::move(painter)), name)
{}

void Picture::repaint() { widget()->update(); }
