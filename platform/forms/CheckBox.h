#pragma once

#include "platform/forms/Control.h"

namespace forms {

/// A check box. An ampersand in its caption marks the access key.
class CheckBox : public Control
{
public:
    CheckBox(Form& owner, const std::string& name, const std::string& caption, Handler onClick = {});

    bool isChecked() const;
    /// Raises no Click.
    void setChecked(bool checked);

private:
    Handler click;
};

} // namespace forms
