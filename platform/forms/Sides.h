#pragma once

#include "platform/forms/Control.h"

namespace forms {

/// Two controls with a movable divider between them: side by side in a wide form, else one above the other.
/// The first gets the room that the second does not need.
class Sides : public Control
{
public:
    Sides(Form& owner, const std::string& name, const Control& first, const Control& second);
};

} // namespace forms
