#pragma once

#include "platform/forms/Controls.h"
#include "platform/forms/Menu.h"
#include "platform/forms/TextField.h"

#include <QPointer>

#include <vector>

class QEventLoop;

namespace forms {

class FormWindow;
class Picture;

enum class CloseReason
{
    ControlMenu = 0, ///< the user closed the window
    Code = 1,        ///< the program unloaded the form
};

/// The kind of a form's window.
enum class FormKind
{
    Screen, ///< independent; the user may enlarge it
    Dialog, ///< in front of another form
};

/// A form: a window with named controls and event handlers. Each form class has one instance in the process
/// (see form<F>() in Forms.h). The class overrides the life-cycle handlers that it needs.
///
/// Controls are members, constructed with the form as their owner. The constructor lays them out and connects
/// their handlers; Form_Load then runs once.
class Form
{
protected:
    // Short names for use inside a form.
    using Button = forms::Button;
    using CloseReason = forms::CloseReason;
    using Control = forms::Control;
    using DropDownList = forms::DropDownList;
    using Frame = forms::Frame;
    using Label = forms::Label;
    using Menu = forms::Menu;
    using MenuCommand = forms::MenuCommand;
    using MenuSeparator = forms::MenuSeparator;
    using Picture = forms::Picture;
    using Rule = forms::Rule;
    using TextField = forms::TextField;

public:
    Form(const std::string& name, FormKind kind);
    virtual ~Form();
    Form(const Form&) = delete;
    Form& operator=(const Form&) = delete;

    /// Shows the form without waiting, or brings it to the front if it is already shown.
    void Show();
    /// Shows the form, blocks input to all other windows, and returns when the form is hidden or unloaded.
    /// The form may no longer exist then.
    void ShowModal();
    /// Hides the form and keeps it with all its fields.
    void Hide();
    /// Runs Form_QueryUnload and Form_Unload. Destroys the form when none of its handlers is running. A
    /// second call is harmless; a call from one of these handlers hides the window immediately.
    void Unload(CloseReason reason = CloseReason::Code);

    void setBackColour(Colour colour);
    void setCaption(const std::string& caption);
    std::string caption() const;

    /// Sets the window's size, which is also its minimum. The window grows if its controls need more. If the
    /// screen has less room, the window takes the room and its content scrolls.
    void setSize(Twips width, Twips height);
    /// Enlarges the window to this size, or as far as the screen has room. Call it after setSize.
    void enlargeTo(Twips width, Twips height);
    /// Makes the window as large as its controls need.
    void fitToControls();
    /// Keeps the controls together, in the middle, when the window is enlarged. Call it after setSize.
    void keepTogether();
    /// Places the window on the primary screen, or as near to that place as the screen allows.
    void moveTo(Twips left, Twips top);
    /// Centers the window horizontally and puts 1/topPart of the free height above it.
    void placeInTheMiddle(int topPart);
    Twips width() const;
    Twips height() const;
    bool isVisible() const;

    /// Enter presses this button while it is enabled, unless another button has the focus.
    void setDefaultButton(Button& button);
    /// Presses the default button. Returns false if there is none or it is disabled.
    bool pressDefaultButton();
    /// Esc presses this button.
    void setCancelButton(Button& button);
    /// Esc closes the window, as its close box does.
    void closeOnEsc();
    /// F1 runs this handler.
    void onHelpKey(Handler handler) { help = std::move(handler); }
    /// Does what Enter, Esc or F1 does on this form. Returns false for another key, and if nothing is done.
    bool pressKey(int key);

    /// Adds menus and commands.
    template <class... Entries>
    void addToMenuBar(Entries&... entries)
    {
        (addToMenuBar(entries.action()), ...);
    }

    /// The window, as a parent for dialogs, and its area for the controls.
    QWidget* window() const;
    QWidget* area() const;

    /// Moves the focus within the form, and scrolls there.
    void focusOn(QWidget& widget);
    /// Called by a control whose state is about to change. If a handler disables the control that has the
    /// focus and sets no focus, the first button that it enabled gets the focus when the handler ends.
    void noteEnabling(QWidget& widget, bool enabled);

    /// Counts a running handler, so that the form outlives it.
    class RunningHandler
    {
    public:
        explicit RunningHandler(Form& owner);
        ~RunningHandler();
        RunningHandler(const RunningHandler&) = delete;
        RunningHandler& operator=(const RunningHandler&) = delete;

    private:
        Form& form;
    };

protected:
    virtual void Form_Load() {}
    virtual void Form_Activate() {}
    virtual void Form_QueryUnload(CloseReason /*reason*/) {}
    virtual void Form_Unload() {}

private:
    friend class FormRegistry;

    void addToMenuBar(QAction* entry);
    void load();
    void showWindow();
    void endWait();
    bool runIfSet(const Handler& handler);
    void settleFocus();

    FormWindow* frame;
    Button* defaultButton = nullptr;
    Handler escape;
    Handler help;
    bool lostFocus = false;                        // in the running handler
    std::vector<QPointer<QWidget>> enabledButtons; // by the running handler
    QPointer<QEventLoop> wait;                     // ending the process may end the loop as well
    int runningHandlers = 0;
    bool unloading = false;
    bool retired = false;
};

} // namespace forms
