#pragma once

#include <Qt>

#include <deque>
#include <functional>
#include <memory>
#include <string>
#include <vector>

class QAction;
class QMenu;
class QObject;
class QWidget;

/// A message box as the user saw it.
struct Message
{
    std::string text;
    std::string title;

    friend bool operator==(const Message&, const Message&) = default;
};

/// A user at the program: clicks, types key by key, chooses from menus, closes windows, and reads what the
/// screen shows. Controls are found by name in the window that takes input.
///
/// Message boxes are closed as they come and kept in `messages`. What to do in a dialog that a click will
/// open is said before the click (see inDialog).
class User
{
public:
    User();
    ~User();
    User(const User&) = delete;
    User& operator=(const User&) = delete;

    void click(const std::string& control);
    void doubleClick(const std::string& control);
    void pressMouse(const std::string& control);
    void releaseMouse(const std::string& control);
    void middleClick(const std::string& control);

    /// Goes to a field by the keyboard and types over what stands there.
    void type(const std::string& field, const std::string& text);
    /// Presses keys where the focus is.
    void key(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    void keys(const std::string& text);

    void choose(const std::string& menuEntryName);
    static void chooseFromMenu(QMenu& menu, QAction* entry); ///< of a menu that is open
    void chooseFromList(const std::string& list, const std::string& entry);
    void closeWindow();

    /// Does something in the next dialog of that name. Dialogs are answered in the order said.
    void inDialog(const std::string& dialog, std::function<void()> actions);
    /// Runs while the next message box stands open, before it is closed.
    void atMessage(std::function<void()> actions) { messageActions = std::move(actions); }

    std::vector<Message> messages;

    std::string window() const; ///< the name of the window that takes input
    std::string title() const;
    std::string text(const std::string& control) const; ///< of a field, label, frame, button or list
    std::string focus() const;
    bool isEnabled(const std::string& control) const;
    bool isVisible(const std::string& control) const;
    QWidget* widget(const std::string& control) const;
    QAction* menuEntry(const std::string& name) const;
    static QWidget* findWindow(const std::string& name); ///< shown or hidden

private:
    void lookAgain();
    void lookAtScreen();

    struct DialogPlan
    {
        std::string dialog;
        std::function<void()> actions;
    };
    std::deque<DialogPlan> plans;
    std::function<void()> messageActions;
    std::unique_ptr<QObject> looking; // the looking ends with the user
};
