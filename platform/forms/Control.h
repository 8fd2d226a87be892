#pragma once

#include "platform/forms/Dispatcher.h"

#include <cstdint>
#include <string>

class QWidget;

namespace forms {

class Form;

/// Sizes and positions of forms are in twips: 10 per device-independent pixel.
using Twips = int;

constexpr int TwipsPerPixel = 10;

constexpr int ToPixels(Twips twips) { return twips / TwipsPerPixel; }
constexpr Twips ToTwips(int pixels) { return pixels * TwipsPerPixel; }

/// The primary screen, on which forms are placed.
struct Screen
{
    static Twips width();
    static Twips height();
};

/// A color of a control: red, green and blue, from 0 to 255.
struct Colour
{
    std::uint8_t red = 0;
    std::uint8_t green = 0;
    std::uint8_t blue = 0;

    friend bool operator==(const Colour&, const Colour&) = default;
};

namespace Colours {
constexpr Colour Black{0, 0, 0};
constexpr Colour White{255, 255, 255};
constexpr Colour Red{255, 0, 0};
constexpr Colour Grey{192, 192, 192};
constexpr Colour LightGrey{224, 224, 224};
constexpr Colour LightGreen{128, 255, 128};
constexpr Colour LightCyan{128, 255, 255};
constexpr Colour LightYellow{255, 255, 128};
} // namespace Colours

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
    template <class Widget>
    Widget& as() const
    {
        return static_cast<Widget&>(*theWidget);
    }

private:
    Form& form;
    QWidget* theWidget;
    bool hasOwnForeColour = false;
};

} // namespace forms
