#pragma once

#include "screens/AirPropertiesCalc.h"
#include "screens/CoolingLoad1.h"
#include "screens/HeatingLoad1.h"
#include "screens/Humid1.h"
#include "screens/MixedAir.h"

#include "platform/forms/Forms.h"

#include <ostream>
#include <string>
#include <utility>
#include <vector>

/// A text in both unit systems.
struct TextByUnits
{
    std::string english;
    std::string metric;
};

/// How far below the dry bulb an item is clipped, and the text of a clip at 70 deg F and at 20 deg C.
struct ExpectedClip
{
    double english;
    double metric;
    std::string textAt70;
    std::string textAt20;
};

/// What happens to each button, in the order of `buttons`: '+' it is on, '-' it is off, '.' it stays as it
/// was.
using ButtonOutcome = std::string;

inline const std::vector<std::string> allItems{"txtTwb", "txttd", "txtRH", "txtW", "txtGrains"};

using NamesAndCaptions = std::vector<std::pair<std::string, std::string>>;

inline const std::string enterOneItem = "Enter One of These 5 Items, Click \"Calculate Properties\"";

inline const NamesAndCaptions plainPanelLabels{
    {"lblTdb1", " Dry Bulb Temp"},         {"lblP1", " Pressure"},
    {"lblTwb1", " Wet Bulb Temp"},         {"lblDewPt1", " Dew Point Temp"},
    {"lblRH1", " Relative Humidity"},      {"lblW1", " Humidity ratio, W"},
    {"lblGrains1", " Humidity ratio, gr"}, {"lblEnthalpy1", "enthalpy, h"},
    {"lblSpVol1", "specific volume, v"}};

inline const ExpectedClip hundredthBelow{0.01, 0.01, "69.99", "19.99"};
inline const ExpectedClip tenthBelow{0.1, 0.1, "69.9", "19.9"};
inline const ExpectedClip tenthOrTwentiethBelow{0.1, 0.05, "69.9", "19.95"};

/// What a user sees on one of the five calculators with an air-state panel. Written out by hand: taken from
/// PanelRules.h, it would follow every mistake there. A row names what isn't as on most of the five.
struct PanelExpectation
{
    std::string form;
    std::string menuButton; ///< of the main menu
    bool (*isLoaded)();

    TextByUnits title;
    /// Dry bulb, pressure, the five items in their order on the screen, the two results.
    NamesAndCaptions labels = plainPanelLabels;
    std::string metricHumidityUnit = " g moisture/kg dry air";
    NamesAndCaptions frames;
    NamesAndCaptions buttons; ///< from the top

    std::string ownMenu{}; ///< hidden, before the help
    std::string saveCaption = "&Save Results to File";
    std::string fileSeparator = "mnuFiledash2";
    std::string helpEntry;
    std::string searchCaption = "&Search for Help On";

    bool clearsState = true;
    bool makesFolderCurrent = false;
    bool emptiesDryBulbAtClick = false;
    bool hasEntryShortcuts = false; ///< Enter in the dry bulb, the mouse going down on two items
    bool limitsMetricDryBulb = true;
    bool discardsTypedGrains = false;
    std::vector<std::string> itemsWithChangeHandler = allItems;
    ExpectedClip wetBulbClip = tenthOrTwentiethBelow;
    ExpectedClip dewPointClip = tenthBelow;

    ButtonOutcome onChange;
    ButtonOutcome onClick;
    ButtonOutcome whereRefused;
    ButtonOutcome afterCalculation;
    ButtonOutcome afterTooHighRatio; ///< no result is written then, so that no field changes
    std::string focusAfterCalculation = "btnCALCULATE";
};

inline void PrintTo(const PanelExpectation& panel, std::ostream* out) { *out << panel.form; }

inline const PanelExpectation panels[] = {
    {.form = "AirPropertiesCalc",
     .menuButton = "btnAirCalc",
     .isLoaded = forms::isLoaded<AirPropertiesCalc>,
     .title = {" Air Properties Calculator - (English Units)", " Air Properties Calculator - (Metric Units)"},
     .frames = {{"Frame5", "Actions:"},
                {"Frame2", "First Enter Dry Bulb Temperature and Pressure:"},
                {"Frame1", enterOneItem},
                {"Frame3", ""},
                {"Frame4", ""}},
     .buttons = {{"btnCALCULATE", "Calculate Properties"}},
     .fileSeparator = "mnusep2",
     .helpEntry = "mnuHelpAirPropCalc=&Help for Air Properties Calc",
     .searchCaption = "&Search for Help On ...",
     .makesFolderCurrent = true,
     .hasEntryShortcuts = true,
     .wetBulbClip = hundredthBelow,
     .dewPointClip = hundredthBelow,
     .onChange = "+",
     .onClick = "+",
     .whereRefused = "-",
     .afterCalculation = "+",
     .afterTooHighRatio = "."},

    {.form = "MixedAir",
     .menuButton = "btnMixedAir",
     .isLoaded = forms::isLoaded<MixedAir>,
     .title = {" Adiabatic Mixing of Moist Air - (English Units)",
               " Adiabatic Mixing of Moist Air - (Metric Units)"},
     .labels = {{"lblTdb1", " Dry Bulb Temp"},
                {"lblP1", " Pressure"},
                {"lblTwb1", " Wet Bulb Temp"},
                {"lblDewPt1", " Dew Point Temp"},
                {"lblRH1", " Relative Humidity"},
                {"lblW1", " Humidity Ratio, W"},
                {"lblGrains1", " Humidity Ratio, gr"},
                {"lblEnthalpy1", " Enthalpy, h"},
                {"lblSpVol1", " Specific Volume, v"}},
     .metricHumidityUnit = " g water/kg dry air",
     .frames = {{"Frame5", "Actions:"},
                {"Frame2", "First Enter Dry Bulb Temperature and Pressure:"},
                {"Frame1", enterOneItem},
                {"Frame3", ""},
                {"Frame4", "Air Volumes:"}},
     .buttons = {{"btnCALCULATE", "Calculate Properties"},
                 {"btnSaveOSA", "Save Outside Air"},
                 {"btnRA", "Save Return Air"},
                 {"btnMixedAir", "Calculate Mixed Air"}},
     .ownMenu = "mnuReview=&Review",
     .helpEntry = "mnuHelpMixedAir=Help for &Mixed Air",
     .limitsMetricDryBulb = false,
     .discardsTypedGrains = true,
     .itemsWithChangeHandler = {"txtTwb", "txttd"},
     .onChange = "+---",
     .onClick = "+---",
     .whereRefused = "-...",
     .afterCalculation = "+++-", // the results change the wet bulb, which turns the mixing off
     .afterTooHighRatio = ".++."},

    {.form = "CoolingLoad1",
     .menuButton = "btnCooling",
     .isLoaded = forms::isLoaded<CoolingLoad1>,
     .title = {" Cooling of Moist Air - (English Units)", " Cooling of Moist Air - (Metric / SI Units)"},
     .labels = {{"Label1", " Dry Bulb Temp"},
                {"Label3", "Pressure"},
                {"Label2", " Wet Bulb Temp"},
                {"Label16", " Dew Point Temp"},
                {"Label12", " Relative Humidity"},
                {"Label17", " Humidity Ratio, W"},
                {"lblGrains1", " Humidity Ratio, gr"},
                {"Label24", " Enthalpy, h"},
                {"Label8", " Specific Volume, v"}},
     .metricHumidityUnit = " g water/kg dry air",
     .frames = {{"Frame5", ""},
                {"Frame2", "Enter Entering Air Dry Bulb Temperature:"},
                {"Frame1", enterOneItem},
                {"Frame3", ""},
                {"Frame6", ""}},
     .buttons = {{"btnCALCULATE", "Calculate Properties"},
                 {"btnSaveEA", "Save Entering Air"},
                 {"btnSetLA", "Set Leaving Air"},
                 {"btnCalcLoad", "Calculate Load"}},
     .fileSeparator = "mnusep2",
     .helpEntry = "mnuHelpCooling=Help for &Cooling Loads",
     .searchCaption = "&Search for Help On ...",
     .clearsState = false,
     .wetBulbClip = hundredthBelow,
     .dewPointClip = hundredthBelow,
     .onChange = "+...",
     .onClick = "+---",
     .whereRefused = "-.--",
     .afterCalculation = "-+--",
     .afterTooHighRatio = "-+--",
     .focusAfterCalculation = "btnSaveEA"},

    {.form = "HeatingLoad1",
     .menuButton = "btnHeating",
     .isLoaded = forms::isLoaded<HeatingLoad1>,
     .title = {" Heating Load Calculator - (English Units)", " Heating Load Calculator - (Metric Units)"},
     .frames = {{"Frame5", "Actions:"},
                {"Frame2", "First Enter Dry Bulb Temperature and Pressure:"},
                {"Frame1", enterOneItem},
                {"Frame3", ""},
                {"Frame4", ""},
                {"Frame6", "Set Entering Air Conditions ... then click 'Entering Air'"}},
     .buttons = {{"btnCALCULATE", "Calculate Properties"},
                 {"btnSaveEnteringAir", "Save Entering Air"},
                 {"btnInputLeavingAir", "Input Leaving Air"}},
     .saveCaption = "&Save Data to File",
     .helpEntry = "mnuHelpHeat=Help for &Heating Loads",
     .emptiesDryBulbAtClick = true,
     .onChange = "+..",
     .onClick = "+--",
     .whereRefused = "-..",
     .afterCalculation = "-++",
     .afterTooHighRatio = "-++",
     .focusAfterCalculation = "btnSaveEnteringAir"},

    {.form = "Humid1",
     .menuButton = "btnHumidity",
     .isLoaded = forms::isLoaded<Humid1>,
     .title = {" Humidification Calculation - (English Units)",
               " Humidification Calculation - (Metric Units)"},
     .frames = {{"Frame5", "Actions :"},
                {"Frame2", "Enter Outside Air Dry Bulb Temperature and Pressure:"},
                {"Frame1", enterOneItem},
                {"Frame3", ""},
                {"Frame6", "Calculate Outside Air Properties ... then click 'Humidity Desired'"}},
     .buttons = {{"btnCALCULATE", "Calculate Properties"}, {"btnHumidityDesired", "Humidity Desired "}},
     .helpEntry = "mnuHelpHumidity=Help for Humidity",
     .onChange = "+.",
     .onClick = "+-",
     .whereRefused = "-.",
     .afterCalculation = "-+",
     .afterTooHighRatio = "-+",
     .focusAfterCalculation = "btnHumidityDesired"},
};
