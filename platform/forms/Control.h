#pragma once

#include "platform/forms/Colour.h"
#include "platform/forms/Dispatcher.h"
#include "platform/forms/Twips.h"

#include <string>

class QPalette;
class QWidget;

namespace forms {

class Form;

/// What all controls of a form share. A control is a handle: the widget behind it belongs to the form's
/// window and carries the control's name as its object name.
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

    /// Moves the focus here.
    void takeFocus();

    /// Puts the control on a fixed place of its form, where no layout does.
    void place(Twips left, Twips top, Twips width, Twips height);

    /// The text becomes black or white, whichever is readable on the colour, until it is given its own.
    void setBackColour(Colour colour);
    void setForeColour(Colour colour);
    Colour backColour() const;
    Colour foreColour() const;

    void setToolTip(const std::string& tip);
    /// What assistive technology calls the control: what it is, with its unit.
    void setAccessibleName(const std::string& name);

    QWidget* widget() const { return theWidget; }

protected:
    /// Runs a handler of this control in the dispatcher, if there is one.
    void raise(const Handler& handler);
    Form& owner() const { return form; }

private:
    Form& form;
    QWidget* theWidget;
    bool hasOwnForeColour = false;
};

} // namespace forms
