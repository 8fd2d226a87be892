#include "screens/HeatingLoad2.h"

#include "core/CoilLoads.h"
#include "core/MainMod.h"
#include "screens/HeatingLoad1.h"

using namespace forms;

HeatingLoad2::HeatingLoad2() : Form("HeatingLoad2", FormKind::Dialog)
{
    setCaption("Leaving Air Temp");
    layOut();
    setDefaultButton(btnOK);
    closeOnEsc();
    onHelpKey([this] { OpenHelp(*this, HelpTopic::Heating); });
}

void HeatingLoad2::layOut()
{
    auto* const grid = new Grid(*this, {24, 24, 24, 20}, 12);
    grid->setVerticalSpacing(10);
    grid->add(Label1, 0, 0, 1, 3);
    AddCells(*grid, 1, {&Label3, &txtHeatLAT, &Label2});
    grid->setColumnMinimumWidth(1, WidthOfCharacters(Label1, 14));
    grid->setRowMinimumHeight(2, 12);
    grid->add(btnOK, 3, 2);
    ColourEntries({&txtHeatLAT}, Colours::LightYellow);
    Label3.describe(txtHeatLAT);
    NameWithUnit(txtHeatLAT, "Leaving air temperature", IsMetric() ? "Deg. C" : "Deg. F");
}

void HeatingLoad2::Form_Load()
{
    fitToControls();
    placeInTheMiddle(4);
}

void HeatingLoad2::Form_QueryUnload(CloseReason reason)
{
    if (reason == CloseReason::ControlMenu)
        Unload();
}

// Intentional: without saved entering air, the mass flow divides by zero.
void HeatingLoad2::btnOK_Click()
{
    HeatingLeavingAir.W = HeatingEnteringAir.W; // the coil adds no moisture
    const TaggedNumber massFlow = HeatingMassFlow();
    HeatingLeavingAir.Tdb = ParseSingle(txtHeatLAT.text());
    CalculateHeatingLoad(massFlow);
    form<HeatingLoad1>().showLeavingEntry(HeatingLeavingAir.Tdb, HeatingLeavingAir.W);
    StatePoint.Tdb = HeatingLeavingAir.Tdb;
    StatePoint.W = HeatingLeavingAir.W;
    Unload();
}
