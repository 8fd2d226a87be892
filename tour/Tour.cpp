#include "tour/Tour.h"

#include "tour/Hand.h"

namespace {

/// The differences between the two walks.
struct Walk
{
    const char* units;  ///< prefix of the pictures' names
    const char* tdb;    ///< a dry bulb
    const char* tooHot; ///< one that is refused
    const char* badPressure;
    const char* outsideTdb;
    const char* outsideVolume;
    const char* returnVolume;
    const char* dryCoil; ///< leaving air that needs no wet bulb
    const char* wetCoil;
    const char* wetCoilWetBulb;
    const char* heated;
    const char* winter;
    const char* humidifiedVolume;
    bool isMollier; ///< the chart's form
    bool prints;    ///< only once: the second time, the dialog would ask whether to replace the file
};

constexpr Walk english{
    .units = "english-",
    .tdb = "70",
    .tooHot = "125.1",
    .badPressure = "10.99",
    .outsideTdb = "95",
    .outsideVolume = "1000",
    .returnVolume = "3000",
    .dryCoil = "70",
    .wetCoil = "55",
    .wetCoilWetBulb = "54",
    .heated = "90",
    .winter = "30",
    .humidifiedVolume = "500",
    .isMollier = false,
    .prints = true,
};

constexpr Walk metric{
    .units = "metric-",
    .tdb = "20",
    .tooHot = "50.5",
    .badPressure = "46.9",
    .outsideTdb = "35",
    .outsideVolume = "1700",
    .returnVolume = "5100",
    .dryCoil = "24",
    .wetCoil = "13",
    .wetCoilWetBulb = "12.5",
    .heated = "35",
    .winter = "0",
    .humidifiedVolume = "850",
    .isMollier = true,
    .prints = false,
};

void calculate(Hand& hand, const char* tdb, const char* relativeHumidity)
{
    hand.enter("txtTdb", tdb);
    hand.enter("txtRH", relativeHumidity);
    hand.click("btnCALCULATE");
}

void answerVolume(Hand& hand, const char* volume)
{
    hand.enter("txtCFMinput", volume);
    hand.click("btnOK");
}

/// Saves the current calculator's report through the save dialog. Takes no picture, because the dialog shows
/// the folders of this machine.
void save(Hand& hand, const char* entry, const QString& name)
{
    hand.choose(entry);
    hand.type(hand.reportFile(name + "report.txt"));
    hand.key("Return");
}

/// Prints the report to a PDF file through the print dialog.
void print(Hand& hand, const char* entry, const QString& name)
{
    hand.choose(entry);
    hand.enter("filename", hand.reportFile(name + "report.pdf"));
    hand.pictureOfAll(name + "print");
    hand.key("Return");
}

void visitAirProperties(Hand& hand, const Walk& walk)
{
    const QString units = walk.units;
    hand.click("btnAirCalc");
    hand.picture(units + "air-properties-empty");

    hand.enter("txtTdb", walk.tdb);
    hand.enter("txtRH", "50");
    hand.click("btnCALCULATE");
    hand.picture(units + "air-properties");

    hand.enter("txtRH", "100.1");
    hand.click("btnCALCULATE");
    hand.picture(units + "air-properties-warning");

    hand.enter("txtTwb", "99");
    hand.click("btnCALCULATE");
    hand.picture(units + "air-properties-wet-bulb-warning");

    hand.enter("txtTdb", walk.tooHot);
    hand.enter("txtRH", "50");
    hand.click("btnCALCULATE");
    hand.pictureOfAll(units + "message");
    hand.clickOk();
    hand.choose("mnuMain1");
}

void visitMixedAir(Hand& hand, const Walk& walk)
{
    const QString units = walk.units;
    hand.click("btnMixedAir");
    calculate(hand, walk.outsideTdb, "40");
    hand.click("btnSaveOSA");
    hand.pictureOfAll(units + "air-volume");
    answerVolume(hand, walk.outsideVolume);
    calculate(hand, walk.tdb, "50");
    hand.click("btnRA");
    answerVolume(hand, walk.returnVolume);
    hand.picture(units + "mixed-air");
    hand.click("btnMixedAir");
    hand.picture(units + "mixed-air-table");
    save(hand, "mnuSave2File", units + "mixed-air-");
    if (walk.prints)
        print(hand, "mnuPrintResults", units + "mixed-air-");
    hand.click("btnOK");
    hand.choose("mnuMain1");
}

void setLeavingAir(Hand& hand, const char* dryBulb, const char* wetBulb)
{
    hand.enter("txtLATdb", dryBulb);
    if (wetBulb != nullptr)
        hand.enter("txtLATwb", wetBulb);
}

void sizeCoil(Hand& hand, const Walk& walk, const QString& name, const char* dryBulb, const char* wetBulb)
{
    calculate(hand, walk.outsideTdb, "40");
    hand.click("btnSaveEA");
    answerVolume(hand, walk.outsideVolume);
    hand.click("btnSetLA");
    setLeavingAir(hand, dryBulb, wetBulb);
    hand.pictureOfAll(name + "-leaving");
    hand.click("btnOK");
    hand.picture(name);
    hand.click("btnCalcLoad");
    hand.picture(name + "-summary");
    hand.click("Command1");
}

void visitCooling(Hand& hand, const Walk& walk)
{
    const QString units = walk.units;
    hand.click("btnCooling");
    sizeCoil(hand, walk, units + "cooling-dry", walk.dryCoil, nullptr);
    sizeCoil(hand, walk, units + "cooling-wet", walk.wetCoil, walk.wetCoilWetBulb);
    save(hand, "mnuSave", units + "cooling-");
    hand.choose("mnuMain1");
}

void visitHeating(Hand& hand, const Walk& walk)
{
    const QString units = walk.units;
    hand.click("btnHeating");
    calculate(hand, walk.tdb, "50");
    hand.click("btnSaveEnteringAir");
    answerVolume(hand, walk.outsideVolume);
    hand.click("btnInputLeavingAir");
    hand.enter("txtHeatLAT", walk.heated);
    hand.pictureOfAll(units + "heating-leaving");
    hand.click("btnOK");
    hand.picture(units + "heating");
    save(hand, "mnuSave", units + "heating-");
    hand.choose("mnuMain1");
}

void visitHumidification(Hand& hand, const Walk& walk)
{
    const QString units = walk.units;
    hand.click("btnHumidity");
    calculate(hand, walk.winter, "60");
    hand.picture(units + "humidification-outside");
    hand.click("btnHumidityDesired");
    hand.enter("txtDesT", walk.tdb);
    hand.enter("txtDesH", "45");
    hand.enter("txtOSA", walk.humidifiedVolume);
    hand.click("btnCalcHumid");
    hand.picture(units + "humidification");
    save(hand, "mnuSave", units + "humidification-");
    hand.click("btnOK");
    hand.choose("mnuMain1");
}

void visitOptions(Hand& hand, const Walk& walk)
{
    const QString units = walk.units;
    hand.choose("mnuOptions");
    hand.pictureOfAll(units + "options");
    hand.enter("txtBP", walk.badPressure);
    hand.click("btnOK");
    hand.pictureOfAll(units + "options-message");
    hand.clickOk();
    hand.click("btnDefault");
    hand.click("btnOK");
}

void changeToMetric(Hand& hand)
{
    hand.choose("mnuOptions");
    hand.click("Combo1");
    hand.key("Down");
    hand.key("Return");
    hand.click("btnOK");
}

/// Pins the middle of the chart, opens its window, and clears the pin.
void visitChart(Hand& hand, const Walk& walk)
{
    hand.click("Image1");
    hand.key("ctrl+o");
    if (walk.isMollier)
        hand.click("chkMollier");
    hand.click("chkComfort");
    hand.picture(QString(walk.units) + "chart-window");
    hand.click("chkComfort");
    if (walk.isMollier)
        hand.click("chkMollier");
    hand.key("ctrl+w");
    hand.click("Image1"); // a second click lets the pin go
}

void visitCalculators(Hand& hand, const Walk& walk)
{
    visitAirProperties(hand, walk);
    visitMixedAir(hand, walk);
    visitCooling(hand, walk);
    visitHeating(hand, walk);
    visitHumidification(hand, walk);
    hand.picture(QString(walk.units) + "main-menu-last-runs");
    visitChart(hand, walk);
}

} // namespace

void WalkThroughProgram(Hand& hand)
{
    hand.picture("english-main-menu");
    visitCalculators(hand, english);
    visitOptions(hand, english);
    changeToMetric(hand);
    hand.picture("metric-main-menu");
    visitCalculators(hand, metric);
    visitOptions(hand, metric);
    hand.choose("mnuExit");
}
