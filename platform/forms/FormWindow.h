#pragma once

#include <QMainWindow>

namespace forms {

class Form;

/// The window of a form: hands the close box and the Enter key to the form, and keeps room for the controls.
class FormWindow : public QMainWindow
{
public:
    FormWindow(Form& owner, bool isDialog);

    /// Makes the window this large, or larger where the controls need more, now and later.
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
