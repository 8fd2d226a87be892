#pragma once

#include "platform/forms/Control.h"

namespace forms {

/// A horizontal line.
class Rule : public Control
{
public:
    Rule(Form& owner, const std::string& name);
};

} // namespace forms
