#pragma once

#include "platform/forms/Control.h"

namespace forms {

/// A list of fixed entries of which one is chosen. Choosing raises Click, by the user (also where the entry
/// was chosen already) and by the program.
class DropDownList : public Control
{
public:
    DropDownList(Form& owner, const std::string& name);

    void onClick(Handler handler) { click = std::move(handler); }

    void addItem(const std::string& entry);
    void select(int index);
    /// The chosen entry; empty before the first choice.
    std::string text() const;

private:
    Handler click;
    bool raisedByChange = false;
};

} // namespace forms
