#pragma once

#include <QAbstractButton>
#include <QApplication>
#include <QDialog>
#include <QDialogButtonBox>
#include <QLineEdit>
#include <QMessageBox>
#include <QTimer>

#include <functional>
#include <stdexcept>
#include <vector>

/// Answers the toolkit's dialogs: each answer goes to the next dialog with its name. Cancels an unexpected
/// dialog, and one that stays open for seconds after its answer, and keeps both in `unexpected`.
class Dialogs
{
public:
    using Answer = std::function<void(QDialog&)>;

    Dialogs()
    {
        timer.callOnTimeout([this] { look(); });
        timer.start(5);
    }

    void answer(const QString& name, Answer answer) { plans.push_back({name, std::move(answer)}); }

    std::vector<QString> shown;
    std::vector<QString> unexpected;

private:
    struct Plan
    {
        QString name;
        Answer answer;
    };

    void look()
    {
        auto* const dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        if (dialog == nullptr || !dialog->isVisible())
            return;
        if (dialog->property("answered").toBool())
            return; // its answer is still running, or it has opened a dialog that is now closed
        dialog->setProperty("answered", true);
        shown.push_back(dialog->objectName());
        if (plans.empty() || plans.front().name != dialog->objectName()) {
            unexpected.push_back(dialog->objectName() + ": " + dialog->windowTitle());
            dialog->reject();
            return;
        }
        const Answer answer = plans.front().answer;
        plans.erase(plans.begin());
        QTimer::singleShot(5000, dialog, [this, dialog] {
            unexpected.push_back(dialog->objectName() + " stays open");
            dialog->reject();
        });
        // In a separate event, so that the watch continues while the answer waits in a nested dialog.
        QTimer::singleShot(0, dialog, [answer, dialog] { answer(*dialog); });
    }

    QTimer timer;
    std::vector<Plan> plans;
};

/// A child that a test needs. @throws std::runtime_error if there is none
template <class Widget>
Widget& Child(QWidget& dialog, const char* name)
{
    auto* const found = dialog.findChild<Widget*>(name);
    if (found == nullptr)
        throw std::runtime_error(std::string("no child ") + name);
    return *found;
}

/// Presses the dialog's button of that role: OK or Cancel.
inline void PressIn(QDialog& dialog, QDialogButtonBox::ButtonRole role)
{
    auto* const box = dialog.findChild<QDialogButtonBox*>();
    for (QAbstractButton* button : box->buttons()) {
        if (box->buttonRole(button) == role) {
            button->click();
            return;
        }
    }
    throw std::runtime_error("no such button");
}
inline void Confirm(QDialog& dialog) { PressIn(dialog, QDialogButtonBox::AcceptRole); }
inline void Cancel(QDialog& dialog) { PressIn(dialog, QDialogButtonBox::RejectRole); }

/// The answer that saves under a name, as typed.
inline Dialogs::Answer SaveAs(const QString& name)
{
    return [name](QDialog& dialog) {
        Child<QLineEdit>(dialog, "fileNameEdit").setText(name);
        Confirm(dialog);
    };
}

/// The answer that prints to a file.
inline Dialogs::Answer PrintToFile(const QString& file)
{
    return [file](QDialog& dialog) {
        Child<QLineEdit>(dialog, "filename").setText(file);
        Confirm(dialog);
    };
}
