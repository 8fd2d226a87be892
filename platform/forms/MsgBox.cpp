#include "platform/forms/MsgBox.h"

#include <QApplication>
#include <QMessageBox>

namespace forms {

namespace {

/// The parent for a message box. It must outlive the box, so it can't be a form that a handler has just
/// unloaded (which may still be the active window), nor a tip or a menu.
QWidget* shownWindow()
{
    QWidget* const active = QApplication::activeWindow();
    if (active != nullptr && active->isVisible())
        return active;
    for (QWidget* window : QApplication::topLevelWidgets()) {
        if (window->isVisible() && (window->windowType() == Qt::Window || window->windowType() == Qt::Dialog))
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

bool AskYesNo(const std::string& question)
{
    QMessageBox box(QMessageBox::NoIcon, QCoreApplication::applicationName(),
                    QString::fromStdString(question), QMessageBox::Yes | QMessageBox::No, shownWindow());
    box.setObjectName("QuestionBox");
    box.setTextFormat(Qt::PlainText);
    box.setDefaultButton(QMessageBox::No);
    return box.exec() == QMessageBox::Yes;
}

} // namespace forms
