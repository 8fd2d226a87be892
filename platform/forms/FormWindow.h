#pragma once

#include <QMainWindow>

class QScrollArea;

namespace forms {

class Form;

/// The window of a form. Passes the close box and the Enter, Esc and F1 keys to the form. Stays large enough
/// for the controls, and within its screen: content that needs more room than the screen has scrolls.
class FormWindow : public QMainWindow
{
public:
    FormWindow(Form& owner, bool isDialog);

    /// The area for the controls, and the scrolling view around it.
    QWidget* content() const;
    QScrollArea* view() const;

    /// Sets the window to this size, or larger if the controls need it, now and later.
    void setLeastSize(QSize size);
    /// Makes the window larger, within its screen.
    void enlargeTo(QSize size);
    /// Keeps the content at about its first size, in the middle, when the window is larger.
    void keepTogether();
    /// Places the window's frame, counted from the origin of the primary screen, or as near as this screen
    /// allows.
    void place(QPoint corner);

protected:
    bool event(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    QSize neededByContent() const;
    void keepRoom();
    QSize freeRoom() const;

    Form& owner;
    QSize leastSize;
    bool isKeptTogether = false;
};

} // namespace forms
