#pragma once

#include "platform/forms/Forms.h"

using namespace forms;

/// An empty form, as the owner of a dialog.
class AnyForm : public Form
{
public:
    AnyForm() : Form("AnyForm", FormKind::Screen) {}
};
