#include "tour/Tour.h"

#include "tour/Hand.h"

namespace {

/// What differs between the two walks.
struct Walk
{
    const char* units;  ///< the pictures' names begin with it
    const char* tdb;    ///< a dry bulb
    const char* tooHot; ///< one that is refused
    const char* badPressure;
};

constexpr Walk english{.units = "english-", .tdb = "70", .tooHot = "125.1", .badPressure = "10.99"};
constexpr Walk metric{.units = "metric-", .tdb = "20", .tooHot = "50.5", .badPressure = "46.9"};

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

} // namespace

void walkThroughProgram(Hand& hand)
{
    hand.picture("english-main-menu");
    visitAirProperties(hand, english);
    visitOptions(hand, english);
    changeToMetric(hand);
    hand.picture("metric-main-menu");
    visitAirProperties(hand, metric);
    visitOptions(hand, metric);
    hand.choose("mnuExit");
}
