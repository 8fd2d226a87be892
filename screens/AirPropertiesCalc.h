#pragma once

#include "reports/Reports.h"
#include "screens/AirPanel.h"

/// The air properties calculator: just the air-state panel.
class AirPropertiesCalc : public AirPanel
{
public:
    AirPropertiesCalc();

protected:
    void Form_Load() override;
    void afterResults() override;

private:
    void layOut();

    void mnuPrintDialog_Click() override { PrintAirProperties(*this, texts()); }
    void mnuSave_Click() override { SaveAirProperties(*this, texts()); }
    AirBlock texts() const;

    Frame Frame4{*this, "Frame4"};
};
