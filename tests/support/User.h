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

/// Simulates a user: clicks, types key by key, chooses from menus, closes windows, and reads the screen.
/// Finds controls by name in the window that accepts input.
///
/// Closes message boxes as they appear and keeps them in `messages`. Before a click that opens a dialog, call
/// inDialog with what to do there.
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

    /// Moves to a field by the keyboard and replaces its text.
    void type(const std::string& field, const std::string& text);
    /// Presses keys in the focused control.
    void key(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    void keys(const std::string& text);

    void choose(const std::string& menuEntryName);
    static void chooseFromMenu(QMenu& menu, QAction* entry); ///< an open menu
    void chooseFromList(const std::string& list, const std::string& entry);
    void closeWindow();

    /// Runs actions in the next dialog of that name. Several calls apply to dialogs in that order.
    void inDialog(const std::string& dialog, std::function<void()> actions);
    /// Runs while the next message box is open, before it is closed.
    void atMessage(std::function<void()> actions) { messageActions = std::move(actions); }

    std::vector<Message> messages;

    std::string window() const; ///< the name of the window that accepts input
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
    std::unique_ptr<QObject> looking; // stops watching when the user is destroyed
};
