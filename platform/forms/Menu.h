#pragma once

#include "platform/forms/Dispatcher.h"

#include <string>

class QAction;
class QMenu;

namespace forms {

class Form;

/// An entry of a menu, or a command directly on the menu bar.
class MenuCommand
{
public:
    MenuCommand(Form& owner, const std::string& name, const std::string& caption, Handler onClick = {});

    void onClick(Handler handler) { click = std::move(handler); }

    void enable();
    void disable();
    void show();
    void hide();
    void setShortcut(const std::string& keys);

    QAction* action() const { return theAction; }

private:
    void endHighlight();

    Form& form;
    QAction* theAction;
    Handler click;
};

/// A separator line between entries.
class MenuSeparator
{
public:
    MenuSeparator(Form& owner, const std::string& name);
    QAction* action() const { return theAction; }

private:
    QAction* theAction;
};

/// A drop-down menu of the menu bar.
class Menu
{
public:
    Menu(Form& owner, const std::string& name, const std::string& caption);

    /// Adds commands and separators.
    template <class... Entries>
    void add(Entries&... entries)
    {
        (addAction(entries.action()), ...);
    }

    void enable();
    void disable();
    void show();
    void hide();

    QAction* action() const;

private:
    void addAction(QAction* action);

    QMenu* theMenu;
};

} // namespace forms
