#pragma once

#include "screens/FormParts.h"

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
    void btnCancel_Click() { Unload(); }
    void btnDefault_Click();

    Label lblUnits{*this, "lblUnits", "  Units"};
    DropDownList Combo1{*this, "Combo1"};
    Label lblBP{*this, "lblBP", "  Barometric Pressure"};
    TextField txtBP{*this, "txtBP"};
    Label Label1{*this, "Label1"};
    Button btnOK{*this, "btnOK", "OK", [this] { btnOK_Click(); }};
    Button btnCancel{*this, "btnCancel", "Cancel", [this] { btnCancel_Click(); }};
    Button btnDefault{*this, "btnDefault", "Use Default Settings", [this] { btnDefault_Click(); }};
};
