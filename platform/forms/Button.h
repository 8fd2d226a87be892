#pragma once

#include "platform/forms/Control.h"

namespace forms {

/// A push button. An ampersand in its caption marks the access key, which focuses and presses the button.
class Button : public Control
{
public:
    Button(Form& owner, const std::string& name, const std::string& caption = {}, Handler onClick = {});

    void onClick(Handler handler) { click = std::move(handler); }

    void setCaption(const std::string& caption);
    std::string caption() const;
    /// Presses the button, as a user's click does.
    void press();
    void showAsDefault();

private:
    Handler click;
};

} // namespace forms
