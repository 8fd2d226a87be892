#pragma once

#include "platform/forms/Control.h"

namespace forms {

/// A list of fixed entries, one of which is chosen. Choosing raises Click, whether the user or the program
/// chooses. The user's choice raises it even if the entry was already chosen.
class DropDownList : public Control
{
public:
    DropDownList(Form& owner, const std::string& name);

    void onClick(Handler handler) { click = std::move(handler); }

    void addItem(const std::string& entry);
    void select(int index);
    /// The chosen entry, or empty before the first choice.
    std::string text() const;

private:
    Handler click;
    bool raisedByChange = false;
};

} // namespace forms
