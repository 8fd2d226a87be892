#include "screens/HeatingLoad1.h"

#include "core/CoilLoads.h"
#include "screens/HeatingLoad2.h"
#include "screens/cfmForm.h"

using namespace forms;

HeatingLoad1::HeatingLoad1() : AirPanel("HeatingLoad1", heatingLoad1)
{
    layOut();
    buildMenus();
    switched = {.offOnClick = {&btnSaveEnteringAir, &btnInputLeavingAir},
                .offAfterwards = {&btnCALCULATE},
                .onAfterwards = {&btnSaveEnteringAir, &btnInputLeavingAir}};
    txtAirVolume.onChange([this] { txtAirVolume_Change(); });
    txtHeatLoad.onKeyPress([this](int& key) { txtHeatLoad_KeyPress(key); });
}

void HeatingLoad1::layOut()
{
    layOutActions({&btnCALCULATE, &btnSaveEnteringAir, &btnInputLeavingAir});
    LayOutPairs(Frame4, {{txtAirVolume, lblAirVolume}, {txtHeatLoad, lblHeatLoad}});
    layOutFramesBelow(Frame6, &Frame4);
    ColourEntries({&txtAirVolume, &txtHeatLoad}, Colours::LightCyan);
    ColourEntries({&txth, &txtSpVol}, Colours::LightYellow);
    txtAirVolume.leaveTabOrder();
    txtHeatLoad.leaveTabOrder();
}

void HeatingLoad1::Form_Load()
{
    ClearStatePoint();
    PlaceScreen(*this);
    form<cfmForm>();
    EnableAll({&btnCALCULATE, &btnSaveEnteringAir, &btnInputLeavingAir}, false);
    RepaintForm();
    NameWithUnit(txtAirVolume, "Air volume", IsMetric() ? "cubic meter per hour" : "CFM");
    NameWithUnit(txtHeatLoad, "Heating load", IsMetric() ? "kW" : "BTU");
}

// Disables nothing: the entering air can be saved again with another volume.
void HeatingLoad1::btnSaveEnteringAir_Click()
{
    form<cfmForm>().ShowModal();
    txtAirVolume.setText(PlainText(AirVolume));
    HeatingEnteringAir = AirSnapshot::of(StatePoint, AirVolume);
    lblAirVolume.setCaption(IsMetric() ? " cubic meter per hour " : " CFM air flow ");
    txtAirVolume.show();
}

// Intentional: an edit changes the leaving air and the outside air of MixedAir, but not the entering air or
// the load.
void HeatingLoad1::txtAirVolume_Change()
{
    if (txtAirVolume.isEmpty())
        return;
    AirVolume = txtAirVolume.text();
    MixedOutsideAir.AirVolume = AirVolume.asSingle();
}

// Intentional: continues even if the close box closed the dialog; Metric then divides the load again.
void HeatingLoad1::btnInputLeavingAir_Click()
{
    if (txtTdb.isEmpty())
        txtTdb.setText("0");
    if (txtTwb.isEmpty())
        txtTwb.setText("0");
    hasLeavingEntry = false;
    form<HeatingLoad2>().ShowModal();
    SolveFromW(); // a refusal is ignored
    if (!txtTdb.isEmpty() && !txtW.isEmpty())
        HeatingLeavingAir = AirSnapshot::of(StatePoint, AirVolume);
    showLoad();
    if (hasLeavingEntry)
        KeepLastRun(Calculator::Heating, {{"entering", HeatingEnteringAir}, {"leaving", HeatingLeavingAir}});
}

void HeatingLoad1::showLoad()
{
    if (IsMetric()) {
        lblHeatLoad.setCaption(" kW Heating Load ");
        HeatingLoadValue = HeatingLoadValue / 3600;
        HeatingLoadSingle = HeatingLoadValue.asSingle();
        txtHeatLoad.setText(FormatNumber(HeatingLoadValue, "#,###.##"));
    } else {
        HeatingLoadSingle = HeatingLoadValue.asSingle();
        lblHeatLoad.setCaption(" BTU Heating Load ");
        txtHeatLoad.setText(FormatNumber(HeatingLoadValue, "#,###"));
    }
}

void HeatingLoad1::showLeavingEntry(Single tdb, Single w)
{
    hasLeavingEntry = true;
    txtTdb.setText(PlainText(tdb));
    txtW.setText(PlainText(w)); // intentional: kg/kg in Metric, although the next calculation reads g/kg
}
