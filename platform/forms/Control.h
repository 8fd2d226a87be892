#pragma once

#include "platform/forms/Colour.h"
#include "platform/forms/Dispatcher.h"
#include "platform/forms/Twips.h"

#include <string>

class QPalette;
class QWidget;

namespace forms {

class Form;

/// The base of all controls. A control is a handle: its widget belongs to the form's window, and the widget's
/// object name is the control's name.
class Control
{
public:
    Control(Form& owner, QWidget* widget, const std::string& name);
    virtual ~Control() = default;
    Control(const Control&) = delete;
    Control& operator=(const Control&) = delete;

    void enable() { setEnabled(true); }
    void disable() { setEnabled(false); }
    void setEnabled(bool enabled);
    bool isEnabled() const;

    void show() { setVisible(true); }
    void hide() { setVisible(false); }
    void setVisible(bool visible);

    /// Moves the focus to this control. A field's text is then selected.
    virtual void takeFocus();

    /// Places the control at a fixed position on its form, for forms without a layout.
    void place(Twips left, Twips top, Twips width, Twips height);

    /// Also makes the text black or white, whichever is readable, until setForeColour is called.
    void setBackColour(Colour colour);
    void setForeColour(Colour colour);
    Colour backColour() const;
    Colour foreColour() const;

    void setToolTip(const std::string& tip);
    /// The name that assistive technology reads: the quantity and its unit.
    void setAccessibleName(const std::string& name);

    QWidget* widget() const { return theWidget; }

protected:
    /// Runs a handler of this control in the dispatcher. A no-op if the handler is empty.
    void raise(const Handler& handler);
    Form& owner() const { return form; }

private:
    Form& form;
    QWidget* theWidget;
    bool hasOwnForeColour = false;
};

} // namespace forms
