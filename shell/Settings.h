#pragma once

#include "platform/forms/Button.h"
#include "platform/forms/DropDownList.h"
#include "platform/forms/Form.h"
#include "platform/forms/Label.h"
#include "platform/forms/TextField.h"

/// The options: the unit system and the barometric pressure.
class Settings : public forms::Form
{
public:
    Settings();

protected:
    void Form_Load() override;

private:
    void layOut();

    void Combo1_Click();
    void btnOK_Click();
    void btnCancel_Click();
    void btnDefault_Click();

    void nameField();

    Label lblUnits{*this, "lblUnits", "  Units"};
    DropDownList Combo1{*this, "Combo1"};
    Label lblBP{*this, "lblBP", "  Barometric Pressure"};
    TextField txtBP{*this, "txtBP"};
    Label Label1{*this, "Label1"};
    Button btnOK{*this, "btnOK", "OK"};
    Button btnCancel{*this, "btnCancel", "Cancel"};
    Button btnDefault{*this, "btnDefault", "Use Default Settings"};
};
