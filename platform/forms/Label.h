#pragma once

#include "platform/forms/Control.h"

namespace forms {

/// A line of text on a form.
class Label : public Control
{
public:
    Label(Form& owner, const std::string& name, const std::string& caption = {});

    void setCaption(const std::string& caption);
    std::string caption() const;

    /// Makes this the label of a control.
    void describe(Control& control);
    /// Draws the label as a box for a value.
    void setBoxed();
    void alignRight();
    void center();
    void setWrapped();
    /// Uses Arial, or its metric-compatible substitute, in the size for which its fixed place was designed.
    void setArial();
    void setPointSize(int points);
    void setFontSize(int percentOfNormal, bool bold);
};

} // namespace forms
