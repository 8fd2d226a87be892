#include "screens/humid2.h"

#include "core/Humidification.h"
#include "core/MainMod.h"

using namespace forms;

humid2::humid2() : Form("humid2", FormKind::Screen)
{
    layOut();
    buildMenus();
    mnuHumid2Help.setShortcut("F1");
}

void humid2::buildMenus()
{
    mnuFile.add(mnuPrint, mnuSave, mnuSpacer, mnuExit);
    mnuHelp.add(mnuHumid2Help, mnuSearch, mnuAbout);
    addToMenuBar(mnuFile, mnuMain, mnuHelp);
}

void humid2::Form_Load()
{
    PlaceScreen(*this);
    RepaintHumid2();
}

void humid2::Form_QueryUnload(CloseReason reason)
{
    if (reason == CloseReason::ControlMenu)
        Unload();
}

void humid2::RepaintHumid2()
{
    const bool isMetric = IsMetric();
    setCaption(isMetric ? " Humidity Calculation Settings - (Metric Units - SI)"
                        : " Humidity Calculation Setting - (English Units)");
    lblRH.setCaption(" % RH");
    lblT.setCaption(isMetric ? " deg. C" : " deg. F");
    lblSpaceVol.setCaption(isMetric ? " cubic meters" : " cubic feet (ft3)");
    lblAC.setCaption(isMetric ? "  AC" : " AC");
    lblOSAFlow1.setCaption(isMetric ? " cubic meters per hour" : " Cubic Feet per Minute (CFM)");
    lblOSAFlow2.setCaption(isMetric ? " cubic meters per hour" : " ft3 per min.");
    lblMassPerHour.setCaption(isMetric ? " kg per hour" : " lb. per hr.");
    lblFlowPerHour.setCaption(isMetric ? " liters per hour" : " gal. per hr.");
    lblMassPerDay.setCaption(isMetric ? " kg per day" : " lb. per day");
    lblFlowPerDay.setCaption(isMetric ? " liters per day" : " gal. per day");
    nameFields();
}

// Intentional: a failure ends the handler silently, and the outputs keep their texts.
void humid2::btnCalcHumid_Click()
{
    try {
        solveDesiredAir();
        showMoisture();
        KeepLastRun(Calculator::Humidification, {{"outside", HumidOutsideAir}, {"desired", HumidDesiredAir}});
    } catch (const RunTimeError&) {
        // Results from before the failure remain.
    }
}

void humid2::solveDesiredAir()
{
    HumidDesiredAir.Tdb = ParseSingle(txtDesT.text());
    StatePoint.Tdb = HumidDesiredAir.Tdb;
    StatePoint.RH = ParseSingle(txtDesH.text());
    StatePoint.RH = StatePoint.RH / 100;
    HumidDesiredAir.RH = StatePoint.RH.asSingle();
    HumidDesiredAir.P = HumidOutsideAir.P;
    StatePoint.P = HumidDesiredAir.P;
    SolveDesiredAir();
}

void humid2::showMoisture()
{
    const TaggedNumber spaceVolume = ParseSingle(txtVol.text());
    const TaggedNumber airChanges = ParseSingle(txtAC.text());
    const TaggedNumber infiltration = airChanges * spaceVolume;
    const TaggedNumber outsideAir = ParseSingle(txtOSA.text());
    const bool outsideAirCounts = outsideAir > infiltration.asDouble(); // a tie counts as infiltration
    const MoistureRequired moisture = RequiredMoisture(outsideAirCounts ? outsideAir : infiltration);

    const char* const massPicture = IsMetric() ? "#0.000" : "#0.00";
    txtMassPerHour.setText(FormatNumber(moisture.massPerHour, massPicture));
    txtMassPerDay.setText(FormatNumber(moisture.massPerDay, massPicture));
    txtFlowPerHour.setText(FormatNumber(moisture.flowPerHour, "#0.00"));
    txtFlowPerDay.setText(FormatNumber(moisture.flowPerDay, "#0.00"));
}

HumidityTexts humid2::texts() const
{
    return {.spaceVolume = {txtVol.text(), lblSpaceVol.caption()},
            .airChanges = {txtAC.text(), lblAC.caption()},
            .outsideAir = {txtOSA.text(), lblOSAFlow2.caption()},
            .massPerHour = {txtMassPerHour.text(), lblMassPerHour.caption()},
            .massPerDay = {txtMassPerDay.text(), lblMassPerDay.caption()},
            .flowPerHour = {txtFlowPerHour.text(), lblFlowPerHour.caption()},
            .flowPerDay = {txtFlowPerDay.text(), lblFlowPerDay.caption()}};
}
