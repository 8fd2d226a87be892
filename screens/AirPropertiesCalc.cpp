#include "screens/AirPropertiesCalc.h"

#include "core/MainMod.h"
#include "platform/Desktop.h"

using namespace forms;

AirPropertiesCalc::AirPropertiesCalc() : AirPanel("AirPropertiesCalc", airPropertiesCalc)
{
    setCaption("Air Properties Calculator");
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
    placeScreen();
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

AirPropertiesTexts AirPropertiesCalc::texts() const
{
    return {.txtTdb = txtTdb.text(),
            .txtTwb = txtTwb.text(),
            .txttd = txttd.text(),
            .txtRH = txtRH.text(),
            .txtW = txtW.text(),
            .txtGrains = txtGrains.text(),
            .txtSpVol = txtSpVol.text(),
            .txth = txth.text()};
}

void AirPropertiesCalc::mnuPrintDialog_Click() { PrintAirProperties(*this, texts()); }
void AirPropertiesCalc::mnuSave_Click() { SaveAirProperties(*this, texts()); }
