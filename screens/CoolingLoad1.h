#pragma once

#include "reports/Reports.h"
#include "screens/AirPanel.h"

/// The cooling coil calculator. Only the enabled buttons record the current step: calculate the entering air,
/// save it with its volume, set the leaving air, calculate the load.
class CoolingLoad1 : public AirPanel
{
public:
    CoolingLoad1();

protected:
    void Form_Load() override;

private:
    void layOut();

    void btnSaveEA_Click();
    void btnSetLA_Click();
    void btnCalcLoad_Click();
    void mnuPrintDialog_Click() override { PrintCooling(*this); }
    void mnuSave_Click() override { SaveCooling(*this); }

    void showLeavingEntry();
    void keepLeavingAir();

    Frame Frame6{*this, "Frame6"}; // its caption is the step message
    Button btnSaveEA{*this, "btnSaveEA", "Save Entering Air", [this] { btnSaveEA_Click(); }};
    Button btnSetLA{*this, "btnSetLA", "Set Leaving Air", [this] { btnSetLA_Click(); }};
    Button btnCalcLoad{*this, "btnCalcLoad", "Calculate Load", [this] { btnCalcLoad_Click(); }};
};
