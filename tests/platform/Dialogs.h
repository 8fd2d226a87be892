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

/// Answers the toolkit's dialogs that the code under test opens: each answer is given to the next dialog of
/// its name. A dialog that nobody waits for is closed as on Cancel, and so is one that stays open for seconds
/// after its answer. They are kept in `unexpected`.
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
            return; // its answer is still being given, or opened what is now closed again
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
        // In an event of its own, so that looking goes on while the answer waits in a dialog of the dialog's.
        QTimer::singleShot(0, dialog, [answer, dialog] { answer(*dialog); });
    }

    QTimer timer;
    std::vector<Plan> plans;
};

/// A child that a test needs. @throws std::runtime_error where there is none
template <class Widget>
Widget& child(QWidget& dialog, const char* name)
{
    auto* const found = dialog.findChild<Widget*>(name);
    if (found == nullptr)
        throw std::runtime_error(std::string("no child ") + name);
    return *found;
}

/// Presses the button of a dialog that confirms it, and the one that cancels it.
inline void pressIn(QDialog& dialog, QDialogButtonBox::ButtonRole role)
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
inline void confirm(QDialog& dialog) { pressIn(dialog, QDialogButtonBox::AcceptRole); }
inline void cancel(QDialog& dialog) { pressIn(dialog, QDialogButtonBox::RejectRole); }

/// The answer that saves under a name, typed as it is.
inline Dialogs::Answer saveAs(const QString& name)
{
    return [name](QDialog& dialog) {
        child<QLineEdit>(dialog, "fileNameEdit").setText(name);
        confirm(dialog);
    };
}

/// The answer that prints to a file.
inline Dialogs::Answer printTo(const QString& file)
{
    return [file](QDialog& dialog) {
        child<QLineEdit>(dialog, "filename").setText(file);
        confirm(dialog);
    };
}
