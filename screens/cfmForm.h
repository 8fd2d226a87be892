#pragma once

#include "screens/FormParts.h"

/// The dialog that asks for an air volume and stores it in AirVolume: the text as typed, which its readers
/// convert, or the integer 0. Its buttons only hide it, so it offers the same text next time.
class cfmForm : public forms::Form
{
public:
    cfmForm();

protected:
    void Form_Load() override;
    void Form_Activate() override;

private:
    void layOut();

    void btnOK_Click();
    void btnCancel_Click();
    // Intentional: opens the cooling topic for every calculator.
    void mnuSearch_Click() { OpenHelp(*this, HelpTopic::Cooling); }

    Label Label1{*this, "Label1", "Enter the Air Volume:"};
    TextField txtCFMinput{*this, "txtCFMinput"};
    Label label2{*this, "label2"};
    Button btnOK{*this, "btnOK", "OK", [this] { btnOK_Click(); }};
    Button btnCancel{*this, "btnCancel", "Cancel", [this] { btnCancel_Click(); }};

    Menu mnuHelp{*this, "mnuHelp", "&Help"};
    MenuCommand mnuSearch{*this, "mnuSearch", "&Search for Help on ...", [this] { mnuSearch_Click(); }};
};
