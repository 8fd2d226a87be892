#pragma once

#include "core/CoilLoads.h"
#include "core/MainMod.h"
#include "screens/FormParts.h"

/// The dialog that asks for the air leaving a cooling coil. Compared with the entering air, it refuses the
/// entry or accepts it as dry or wet, and stores the result for the calculator.
class CoolingLoad2 : public forms::Form
{
public:
    CoolingLoad2();

protected:
    void Form_Load() override;
    void Form_Activate() override;
    void Form_QueryUnload(CloseReason reason) override;

private:
    void layOut();

    void txtLATdb_Change();
    void txtLATdb_KeyPress(int& key);
    void btnOK_Click();
    void btnCancel_Click();

    static void noteEntry(Boolean16 accepted, Boolean16 hasWetBulb);
    void refuse(const char* message);
    static void keepKnown(Single dryBulb);
    void acceptDry(Single dryBulb);
    void acceptWet(Single dryBulb, Single wetBulb, Single (*toAbsolute)(Single));

    Label Label1{*this, "Label1",
                 "Enter the desired Cooling Leaving Air Temperature, then Enter or Tab key:"};
    Label Label2{*this, "Label2", " L.A.T.(dry bulb):"};
    TextField txtLATdb{*this, "txtLATdb"};
    Label Label3{*this, "Label3"};
    Label Label4{*this, "Label4", " L.A.T.(wet bulb):"};
    TextField txtLATwb{*this, "txtLATwb"};
    Label Label5{*this, "Label5"};
    Button btnOK{*this, "btnOK", "OK", [this] { btnOK_Click(); }};
    Button btnCancel{*this, "btnCancel", "CANCEL", [this] { btnCancel_Click(); }};
};
