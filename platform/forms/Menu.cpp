#include "platform/forms/Menu.h"

#include "platform/forms/Form.h"

#include <QAction>
#include <QCoreApplication>
#include <QEvent>
#include <QMenu>
#include <QMenuBar>

namespace forms {

MenuCommand::MenuCommand(Form& owner, const std::string& name, const std::string& caption, Handler onClick)
    : form(owner),
      theAction(new QAction(QString::fromStdString(caption), owner.window())),
      click(std::move(onClick))
{
    theAction->setObjectName(QString::fromStdString(name));
    theAction->setMenuRole(QAction::NoRole);
    QObject::connect(theAction, &QAction::triggered, theAction, [this] {
        endHighlight();
        if (click)
            RunHandler(form, click);
    });
}

/// Ends the highlighting of a command on the menu bar, which would stay while its dialog is open.
void MenuCommand::endHighlight()
{
    for (QObject* const shownIn : theAction->associatedObjects()) {
        QEvent leave(QEvent::Leave); // setActiveAction(nullptr) would make the next menu open at a touch
        if (auto* const bar = qobject_cast<QMenuBar*>(shownIn))
            QCoreApplication::sendEvent(bar, &leave);
    }
}

void MenuCommand::enable() { theAction->setEnabled(true); }
void MenuCommand::disable() { theAction->setEnabled(false); }
void MenuCommand::show() { theAction->setVisible(true); }
void MenuCommand::hide() { theAction->setVisible(false); }
void MenuCommand::setShortcut(const std::string& keys)
{
    theAction->setShortcut(QKeySequence(QString::fromStdString(keys)));
}

MenuSeparator::MenuSeparator(Form& owner, const std::string& name) : theAction(new QAction(owner.window()))
{
    theAction->setObjectName(QString::fromStdString(name));
    theAction->setSeparator(true);
}

Menu::Menu(Form& owner, const std::string& name, const std::string& caption)
    : theMenu(new QMenu(QString::fromStdString(caption), owner.window()))
{
    theMenu->setObjectName(QString::fromStdString(name));
    theMenu->menuAction()->setObjectName(QString::fromStdString(name));
}

QAction* Menu::action() const { return theMenu->menuAction(); }
void Menu::addAction(QAction* action) { theMenu->addAction(action); }
// The toolkit's menu also enables its entry on the menu bar.
void Menu::enable() { theMenu->setEnabled(true); }
void Menu::disable() { theMenu->setEnabled(false); }
void Menu::show() { theMenu->menuAction()->setVisible(true); }
void Menu::hide() { theMenu->menuAction()->setVisible(false); }

} // namespace forms
