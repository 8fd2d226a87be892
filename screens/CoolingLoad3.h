#pragma once

#include "screens/FormParts.h"

#include <array>

/// The summary of the cooling loads: sensible plus latent equals total. The calculator fills the load fields
/// before showing it; editing them has no effect elsewhere.
class CoolingLoad3 : public forms::Form
{
public:
    CoolingLoad3();

    /// 0 is the total, 1 the sensible, 2 the latent load. The order on the screen differs.
    std::array<TextField, 3> txtBTU{TextField{*this, "txtBTU(0)"}, TextField{*this, "txtBTU(1)"},
                                    TextField{*this, "txtBTU(2)"}};

protected:
    void Form_Load() override;
    void Form_QueryUnload(CloseReason reason) override;

private:
    void layOut();
    void RepaintCooling3();
    void Command1_Click();

    Label Label2{*this, "Label2", "Air Volume:"};
    TextField txtcfm1{*this, "txtcfm1"};
    Label lblcfm1{*this, "lblcfm1"};
    Label Label1{*this, "Label1", "Cooling load summary:"};
    std::array<Label, 3> lblBTU{Label{*this, "lblBTU(0)"}, Label{*this, "lblBTU(1)"},
                                Label{*this, "lblBTU(2)"}};
    Label Label3{*this, "Label3"};
    Label Label4{*this, "Label4", "+"};
    Rule Line1{*this, "Line1"};
    Label Label5{*this, "Label5", "="};
    Button Command1{*this, "Command1", "OK", [this] { Command1_Click(); }};
};
