#include "screens/CoolingLoad1.h"

#include "core/CoilLoads.h"
#include "screens/CoolingLoad2.h"
#include "screens/CoolingLoad3.h"
#include "screens/cfmForm.h"

using namespace forms;

CoolingLoad1::CoolingLoad1() : AirPanel("CoolingLoad1", coolingLoad1)
{
    layOut();
    buildMenus();
    setDefaultButton(btnCALCULATE);
    switched = {.offOnClick = {&btnSaveEA, &btnSetLA, &btnCalcLoad},
                .offAtCalculation = {&btnSetLA, &btnCalcLoad},
                .offAfterwards = {&btnCALCULATE},
                .onAfterwards = {&btnSaveEA},
                .focusAfterwards = &btnSaveEA};
}

void CoolingLoad1::layOut()
{
    for (Frame* emphasised : {&Frame6, &Frame2, &Frame1})
        emphasised->setBold();
    layOutActions({&btnCALCULATE, &btnSaveEA, &btnSetLA, &btnCalcLoad});
    layOutFramesBelow(Frame6);
}

// Intentional: the state isn't cleared, so this screen starts with that of the last one.
void CoolingLoad1::Form_Load()
{
    PlaceScreen(*this);
    EnableAll({&btnCALCULATE, &btnSaveEA, &btnSetLA, &btnCalcLoad}, false);
    LeavingAirAccepted = False16;
    RepaintForm();
}

void CoolingLoad1::btnSaveEA_Click()
{
    form<cfmForm>().ShowModal();
    CoolingEnteringAir = AirSnapshot::of(StatePoint, AirVolume);
    CoolingEnteringAir.td = RoundToScale(StatePoint.td, 10); // the only dew point that is rounded
    EnableAll({&btnCALCULATE, &btnSaveEA, &btnCalcLoad}, false);
    btnSetLA.enable();
    btnSetLA.takeFocus();
    Frame6.setCaption("Verify Entering Air Conditions ... then click Set Leaving Air");
}

void CoolingLoad1::btnSetLA_Click()
{
    form<CoolingLoad2>().ShowModal();
    if (LeavingAirAccepted == False16)
        return;
    showLeavingEntry();
    if (LeavingWetBulbGiven == False16)
        SolveFromW(); // a refusal is ignored
    else
        SolveFromWetBulb();
    Results2Form();
    if (!txtTdb.isEmpty() && !txtW.isEmpty())
        keepLeavingAir();
}

void CoolingLoad1::showLeavingEntry()
{
    const bool hasWetBulb = LeavingWetBulbGiven != False16;
    StatePoint.Tdb = CoolingLeavingAir.Tdb;
    txtTdb.setText(PlainText(StatePoint.Tdb));
    if (hasWetBulb) {
        StatePoint.Twb = CoolingLeavingAir.Twb;
        txtTwb.setText(PlainText(StatePoint.Twb));
    } else {
        StatePoint.W = CoolingLeavingAir.W;
        txtW.setText(PlainText(StatePoint.W));
    }
    StatePoint.P = CoolingLeavingAir.P;
    txtP.setCaption(PlainText(StatePoint.P)); // intentional: Pa beside " kPa" until the next repaint
    txtRH.clear();
    (hasWetBulb ? txtW : txtTwb).clear();
    txtGrains.clear();
    txttd.clear();
    txth.clear();
    txtSpVol.clear();
}

void CoolingLoad1::keepLeavingAir()
{
    CoolingLeavingAir = AirSnapshot::of(StatePoint, AirVolume);
    KeepLastRun(Calculator::Cooling, {{"entering", CoolingEnteringAir}, {"leaving", CoolingLeavingAir}});
    Frame6.setCaption("Cooling Coil Leaving Air Conditions:");
    Frame1.setCaption(""); // never restored
    Frame2.setCaption("");
    EnableAll({&btnCALCULATE, &btnSaveEA, &btnSetLA}, false);
    btnCalcLoad.enable();
    btnCalcLoad.takeFocus();
}

void CoolingLoad1::btnCalcLoad_Click()
{
    CalculateCoolingLoads();
    btnCalcLoad.disable();
    auto& summary = form<CoolingLoad3>();
    summary.txtBTU[1].setText(FormatNumber(SensibleLoad, "#,###.#"));
    summary.txtBTU[2].setText(FormatNumber(LatentLoad, "#,###.#"));
    summary.txtBTU[0].setText(FormatNumber(TotalLoad, "#,###.#"));
    summary.ShowModal();
}
