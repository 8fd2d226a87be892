#pragma once

#include "screens/FormParts.h"

/// The dialog that asks for the temperature of the air leaving a heating coil and calculates the load.
class HeatingLoad2 : public forms::Form
{
public:
    HeatingLoad2();

protected:
    void Form_Load() override;
    void Form_QueryUnload(CloseReason reason) override;

private:
    void layOut();
    void btnOK_Click();

    Label Label1{*this, "Label1", "Enter the desired Heating Coil"};
    Label Label3{*this, "Label3", " Leaving Air Temperature:"};
    TextField txtHeatLAT{*this, "txtHeatLAT"};
    Label Label2{*this, "Label2", "degrees"}; // in both unit systems
    Button btnOK{*this, "btnOK", "OK", [this] { btnOK_Click(); }};
};
