#pragma once

#include <QLineEdit>

namespace forms {

class TextField;

/// The widget of a text field. Turns the toolkit's events into the field's.
class LineEdit : public QLineEdit
{
public:
    LineEdit(QWidget* parent, TextField& owner);

protected:
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void inputMethodEvent(QInputMethodEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    TextField& field;
    bool pressed = false;
};

} // namespace forms
