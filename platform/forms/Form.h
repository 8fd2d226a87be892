#pragma once

#include "platform/forms/Colour.h"
#include "platform/forms/Dispatcher.h"
#include "platform/forms/Twips.h"

#include <QPointer>

#include <memory>
#include <string>
#include <string_view>
#include <typeindex>

class QEventLoop;
class QWidget;

namespace forms {

class Button;
class Control;
class DropDownList;
class FormWindow;
class Frame;
class Label;
class Menu;
class MenuCommand;
class MenuSeparator;
class Picture;
class Rule;
class TextField;

enum class CloseReason
{
    ControlMenu = 0, ///< the user closed the window by its box or control menu
    Code = 1,        ///< the program unloaded the form
};

/// What the window of a form is for.
enum class FormKind
{
    Screen, ///< stands alone; the user may enlarge it
    Dialog, ///< stands over another form
};

/// A form: a window with named controls and event handlers, of which there is one instance in the process
/// (see form<F>() in Forms.h). Its class overrides the handlers of its life that it needs.
///
/// Its controls are members, made with the form as their owner; its constructor lays them out and gives
/// them their handlers; Form_Load then runs once.
class Form
{
protected:
    // The classes of its parts, which a form can use by their short names.
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

    /// Shows the form without waiting, or brings it to the front where it is shown already.
    void Show();
    /// Shows the form, lets no other window take input, and returns when the form is hidden or unloaded.
    /// The form may be gone by then.
    void ShowModal();
    /// Takes the form off the screen and keeps it with all its fields.
    void Hide();
    /// Runs Form_QueryUnload and Form_Unload and destroys the form once none of its handlers runs any more.
    /// A second call is harmless; from one of these handlers it takes the window off the screen at once.
    void Unload(CloseReason reason = CloseReason::Code);

    void setBackColour(Colour colour);
    void setCaption(const std::string& caption);
    std::string caption() const;

    /// Gives the window its size, which it never falls below; it becomes larger where its controls need more.
    void setSize(Twips width, Twips height);
    /// Makes the window as large as its controls ask for.
    void fitToControls();
    void moveTo(Twips left, Twips top);
    /// Centres the window across the screen, with one part of so many of the free height above it.
    void placeInTheMiddle(int topPart);
    Twips width() const;
    Twips height() const;
    bool isVisible() const;

    /// The button that Enter presses while it is enabled, wherever the focus is but on another button.
    void setDefaultButton(Button& button);
    /// Presses the default button; false where there is none or it is disabled.
    bool pressDefaultButton();

    void addToMenuBar(Menu& menu);
    void addToMenuBar(MenuCommand& command);

    /// The widget of the control of that name, which the form must have.
    QWidget* control(std::string_view name) const;

    /// The window, for parenting, and the area of it that the controls are laid out in.
    QWidget* window() const;
    QWidget* area() const;

    /// Counts a running handler; the form outlives it.
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

    void load();
    void showWindow();
    void endWait();

    FormWindow* frame;
    Button* defaultButton = nullptr;
    QPointer<QEventLoop> wait; // the end of the process may end the loop, too
    int runningHandlers = 0;
    bool unloading = false;
    bool retired = false;
};

/// Keeps the one instance of each form class.
class FormRegistry
{
public:
    static Form* find(std::type_index type);
    static Form& adopt(std::type_index type, std::unique_ptr<Form> newForm);
    /// Takes an unloaded form out, so that the next use starts afresh, and destroys it when it is idle.
    static void retire(Form& unloaded);
    static void destroyIfIdle(Form& unloaded);
    /// Destroys all forms without running their unload handlers, at the end of the process.
    static void clear();
};

} // namespace forms
