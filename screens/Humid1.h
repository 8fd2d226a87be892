#pragma once

#include "screens/AirPanel.h"

/// The humidification calculator's first screen: the outside air. humid2 is the second one; it is loaded with
/// this form and goes with it.
class Humid1 : public AirPanel
{
public:
    Humid1();

protected:
    void Form_Load() override;
    void Form_QueryUnload(CloseReason reason) override;
    void Form_Unload() override {} // unlike the other calculators' it brings nothing back
    void afterResults() override;

private:
    void layOut();

    void SaveOutsideAir();
    void btnHumidityDesired_Click();
    void mnuExit_Click() override;
    void mnuMain1_Click() override;
    void mnuPrintDialog_Click() override;
    void mnuSave_Click() override;

    Frame Frame6{*this, "Frame6", "Calculate Outside Air Properties ... then click 'Humidity Desired'"};
    Button btnHumidityDesired{*this, "btnHumidityDesired", "Humidity Desired "};
};
