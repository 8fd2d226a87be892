#pragma once

#include <QMainWindow>

namespace forms {

class Form;

/// The window of a form. Passes the close box and the Enter key to the form, and stays large enough for the
/// controls.
class FormWindow : public QMainWindow
{
public:
    FormWindow(Form& owner, bool isDialog);

    /// Sets the window to this size, or larger if the controls need it, now and later.
    void setLeastSize(QSize size);

protected:
    bool event(QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void keepRoom();

    Form& owner;
    QSize leastSize;
};

} // namespace forms
