#include "screens/AirPropertiesCalc.h"

#include "platform/Desktop.h"

using namespace forms;

AirPropertiesCalc::AirPropertiesCalc() : AirPanel("AirPropertiesCalc", airPropertiesCalc)
{
    layOut();
    buildMenus();
}

void AirPropertiesCalc::layOut()
{
    layOutActions({&btnCALCULATE});
    layOutFrames(*new Grid(Frame4));
    auto* const whole = new Column(*this);
    whole->add(Frame4);
}

void AirPropertiesCalc::Form_Load()
{
    MakeCurrentDirectory(ApplicationFolder()); // OpenHelp finds the help file there by its name
    PlaceScreen(*this);
    ClearStatePoint();
    btnCALCULATE.disable();
    RepaintForm();
}

void AirPropertiesCalc::afterResults()
{
    // Copies only what the record needs. Copying the complete state could throw after a successful
    // calculation.
    const AirSnapshot air{.W = StatePoint.W.asSingle(), .Tdb = StatePoint.Tdb, .P = StatePoint.P.asSingle()};
    KeepLastRun(Calculator::AirProperties, {{"air", air}});
}

AirBlock AirPropertiesCalc::texts() const
{
    return {.Tdb = txtTdb.text(),
            .Twb = txtTwb.text(),
            .td = txttd.text(),
            .RH = txtRH.text(),
            .W = txtW.text(),
            .Grains = txtGrains.text(),
            .SpVol = txtSpVol.text(),
            .h = txth.text()};
}
