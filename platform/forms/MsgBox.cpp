#include "platform/forms/MsgBox.h"

#include <QApplication>
#include <QMessageBox>

namespace {

/// The window that a message belongs to. A form that a handler has just unloaded may still count as the
/// active window; it must not own the box, which would go down with it.
QWidget* shownWindow()
{
    QWidget* const active = QApplication::activeWindow();
    if (active != nullptr && active->isVisible())
        return active;
    for (QWidget* window : QApplication::topLevelWidgets()) {
        if (window->isVisible())
            return window;
    }
    return nullptr;
}

} // namespace

void MsgBox(const std::string& text, const std::string& title)
{
    QMessageBox box(QMessageBox::NoIcon,
                    title.empty() ? QCoreApplication::applicationName() : QString::fromStdString(title),
                    QString::fromStdString(text), QMessageBox::Ok, shownWindow());
    box.setTextFormat(Qt::PlainText);
    box.exec();
}
