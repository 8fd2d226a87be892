#pragma once

#include "platform/forms/Control.h"

/// A horizontal line.
class Rule : public Control
{
public:
    Rule(Form& owner, const std::string& name);
};
