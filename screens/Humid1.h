#pragma once

#include "screens/AirPanel.h"

/// The first screen of the humidification calculator: the outside air. humid2, the second one, is loaded and
/// unloaded with this form.
class Humid1 : public AirPanel
{
public:
    Humid1();

protected:
    void Form_Load() override;
    void Form_QueryUnload(CloseReason reason) override;
    void Form_Unload() override {} // unlike the other calculators, does not show the main menu
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
