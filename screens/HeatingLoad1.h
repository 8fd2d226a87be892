#pragma once

#include "reports/Reports.h"
#include "screens/AirPanel.h"

/// The heating coil calculator: the entering air with its volume, then the leaving temperature. The coil adds
/// no moisture.
class HeatingLoad1 : public AirPanel
{
public:
    HeatingLoad1();

    /// Shows the entry of the leaving air dialog on the panel.
    void showLeavingEntry(Single tdb, Single w);

protected:
    void Form_Load() override;

private:
    void layOut();

    void btnSaveEnteringAir_Click();
    void btnInputLeavingAir_Click();
    void txtAirVolume_Change();
    void txtHeatLoad_KeyPress(int& key) { key = forms::Key::Swallowed; }
    void mnuPrintDialog_Click() override { PrintHeating(*this); }
    void mnuSave_Click() override { SaveHeating(*this); }

    void showLoad();

    Frame Frame6{*this, "Frame6", "Set Entering Air Conditions ... then click 'Entering Air'"};
    Button btnSaveEnteringAir{*this, "btnSaveEnteringAir", "Save Entering Air",
                              [this] { btnSaveEnteringAir_Click(); }};
    Button btnInputLeavingAir{*this, "btnInputLeavingAir", "Input Leaving Air",
                              [this] { btnInputLeavingAir_Click(); }};
    Frame Frame4{*this, "Frame4"};
    TextField txtAirVolume{*this, "txtAirVolume"};
    Label lblAirVolume{*this, "lblAirVolume"};
    TextField txtHeatLoad{*this, "txtHeatLoad"};
    Label lblHeatLoad{*this, "lblHeatLoad"};
    bool hasLeavingEntry = false; ///< true if OK closed the dialog
};
