#pragma once

#include <QApplication>
#include <QDialogButtonBox>
#include <QDir>
#include <QFileDialog>
#include <QLineEdit>
#include <QPrintDialog>
#include <QPushButton>

/// Answers the toolkit's own dialogs. They reach the whole file system, so no random key or click may get
/// there: a file is saved in the home folder of the tests, or the dialog is cancelled.
/// @return whether the window is one of them
inline bool UseDialogOfTheToolkit(QWidget& window, bool isCancelled)
{
    auto* const dialog = qobject_cast<QDialog*>(&window);
    if (dialog == nullptr)
        return false;
    auto* const files = qobject_cast<QFileDialog*>(dialog);
    auto* const print = qobject_cast<QPrintDialog*>(dialog);
    const bool isOfToolkit = files != nullptr || print != nullptr || dialog->inherits("QPageSetupDialog") ||
                             dialog->inherits("QUnixPrintDialog");
    if (!isOfToolkit)
        return false;
    if (isCancelled) {
        dialog->reject();
        return true;
    }
    if (files != nullptr)
        files->selectFile(QDir::home().filePath("saved-by-the-monkey"));
    if (print != nullptr) {
        if (auto* const name = print->findChild<QLineEdit*>("filename"))
            name->setText(QDir::home().filePath("printed-by-the-monkey.pdf"));
    }
    dialog->accept();
    return true;
}
