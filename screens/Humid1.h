#pragma once

#include "screens/AirPanel.h"
#include "screens/humid2.h"

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
    /// Saves all fields except the air volume, which this calculator never sets.
    void afterResults() override;

private:
    void layOut();

    void leave();

    void btnHumidityDesired_Click() { forms::form<humid2>().ShowModal(); }
    void mnuExit_Click() override { leave(); }
    void mnuMain1_Click() override { leave(); }
    void mnuPrintDialog_Click() override { PrintHumidity(*this, readTexts); }
    void mnuSave_Click() override { SaveHumidity(*this, readTexts); }

    static HumidityTexts readTexts() { return forms::form<humid2>().texts(); }

    Frame Frame6{*this, "Frame6", "Calculate Outside Air Properties ... then click 'Humidity Desired'"};
    Button btnHumidityDesired{*this, "btnHumidityDesired", "Humidity Desired ",
                              [this] { btnHumidityDesired_Click(); }};
};
