#pragma once

#include "platform/forms/Forms.h"

using namespace forms;

/// A form without anything on it, to own a dialog.
class AnyForm : public Form
{
public:
    AnyForm() : Form("AnyForm", FormKind::Screen) {}
};
