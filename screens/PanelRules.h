#pragma once

#include "screens/Help.h"

#include <array>
#include <string_view>

/// A number that differs between the two unit systems.
struct ByUnits
{
    double english;
    double metric;

    double value(bool isMetric) const { return isMetric ? metric : english; }
};

/// The label before a field.
struct RowLabel
{
    const char* name;
    const char* caption;
};

/// The menu entry that opens the calculator's help page.
struct HelpEntry
{
    const char* name;
    const char* caption;
    HelpTopic topic;
};

/// The labels of the nine rows.
struct PanelLabels
{
    RowLabel tdb;
    RowLabel pressure;
    RowLabel wetBulb;
    RowLabel dewPoint;
    RowLabel relativeHumidity;
    RowLabel humidityRatio;
    RowLabel grains;
    RowLabel enthalpy;
    RowLabel specificVolume;
};

/// The names of buttons in the rules. Each form binds its own buttons (see AirPanel::bind).
enum class PanelButton
{
    None,
    btnCALCULATE,
    btnSaveOSA,
    btnRA,
    btnMixedAir,
    btnSaveEA,
    btnSetLA,
    btnCalcLoad,
    btnSaveEnteringAir,
    btnInputLeavingAir,
    btnHumidityDesired,
};

/// Unused elements are None.
using PanelButtons = std::array<PanelButton, 3>;

/// The differences between the calculators with an air-state panel, one set for each form.
struct PanelRules
{
    std::string_view captionEnglish;
    std::string_view captionMetric;
    /// The unit beside the humidity ratio in Metric.
    std::string_view metricHumidityUnit;

    const PanelLabels& labels;
    HelpEntry helpEntry; ///< in the help menu
    const char* searchCaption;
    const char* saveCaption;
    const char* fileSeparator; ///< the name of the separator before Exit
    const char* actions;
    const char* dryBulbFrame;

    /// True if all five humidity fields have a change handler; false if only the wet bulb and the dew point
    /// do.
    bool allItemsTellChanges;
    /// True if Enter moves from the dry bulb to the wet bulb, and a mouse press selects the relative humidity
    /// or the grains before the click.
    bool hasEntryShortcuts;
    /// True if a click on the dry bulb clears it.
    bool clickEmptiesTdb;
    /// True if Metric refuses a dry bulb above 50 degrees.
    bool limitsMetricTdb;
    /// A wet bulb or dew point that is not below the dry bulb is set this far below it.
    ByUnits wetBulbClip;
    ByUnits dewPointClip;

    PanelButtons offOnChange;      ///< disabled when a humidity field changes
    PanelButtons offOnClick;       ///< disabled by a click on a humidity field
    PanelButtons offAtCalculation; ///< disabled when a calculation begins
    PanelButtons offAfterwards;    ///< disabled after the solver, even if it refused the input
    PanelButtons onAfterwards;     ///< enabled at the same time
    PanelButton focusAfterwards;   ///< gets the focus then
};

inline constexpr PanelLabels plainLabels{
    .tdb = {"lblTdb1", " Dry Bulb Temp"},
    .pressure = {"lblP1", " Pressure"},
    .wetBulb = {"lblTwb1", " Wet Bulb Temp"},
    .dewPoint = {"lblDewPt1", " Dew Point Temp"},
    .relativeHumidity = {"lblRH1", " Relative Humidity"},
    .humidityRatio = {"lblW1", " Humidity ratio, W"},
    .grains = {"lblGrains1", " Humidity ratio, gr"},
    .enthalpy = {"lblEnthalpy1", "enthalpy, h"},
    .specificVolume = {"lblSpVol1", "specific volume, v"},
};

inline constexpr PanelRules airPropertiesCalc{
    .captionEnglish = " Air Properties Calculator - (English Units)",
    .captionMetric = " Air Properties Calculator - (Metric Units)",
    .metricHumidityUnit = " g moisture/kg dry air",
    .labels = plainLabels,
    .helpEntry = {"mnuHelpAirPropCalc", "&Help for Air Properties Calc", HelpTopic::AirProperties},
    .searchCaption = "&Search for Help On ...",
    .saveCaption = "&Save Results to File",
    .fileSeparator = "mnusep2",
    .actions = "Actions:",
    .dryBulbFrame = "First Enter Dry Bulb Temperature and Pressure:",
    .allItemsTellChanges = true,
    .hasEntryShortcuts = true,
    .clickEmptiesTdb = false,
    .limitsMetricTdb = true,
    .wetBulbClip = {.english = 0.01, .metric = 0.01},
    .dewPointClip = {.english = 0.01, .metric = 0.01},
    .offOnChange = {},
    .offOnClick = {},
    .offAtCalculation = {},
    .offAfterwards = {},
    .onAfterwards = {},
    .focusAfterwards = {},
};

inline constexpr PanelLabels mixedAirLabels{
    .tdb = {"lblTdb1", " Dry Bulb Temp"},
    .pressure = {"lblP1", " Pressure"},
    .wetBulb = {"lblTwb1", " Wet Bulb Temp"},
    .dewPoint = {"lblDewPt1", " Dew Point Temp"},
    .relativeHumidity = {"lblRH1", " Relative Humidity"},
    .humidityRatio = {"lblW1", " Humidity Ratio, W"},
    .grains = {"lblGrains1", " Humidity Ratio, gr"},
    .enthalpy = {"lblEnthalpy1", " Enthalpy, h"},
    .specificVolume = {"lblSpVol1", " Specific Volume, v"},
};

inline constexpr PanelRules mixedAir{
    .captionEnglish = " Adiabatic Mixing of Moist Air - (English Units)",
    .captionMetric = " Adiabatic Mixing of Moist Air - (Metric Units)",
    .metricHumidityUnit = " g water/kg dry air",
    .labels = mixedAirLabels,
    .helpEntry = {"mnuHelpMixedAir", "Help for &Mixed Air", HelpTopic::MixedAir},
    .searchCaption = "&Search for Help On",
    .saveCaption = "&Save Results to File",
    .fileSeparator = "mnuFiledash2",
    .actions = "Actions:",
    .dryBulbFrame = "First Enter Dry Bulb Temperature and Pressure:",
    .allItemsTellChanges = false,
    .hasEntryShortcuts = false,
    .clickEmptiesTdb = false,
    .limitsMetricTdb = false, // Metric, too, accepts up to 125 degrees
    .wetBulbClip = {.english = 0.1, .metric = 0.05},
    .dewPointClip = {.english = 0.1, .metric = 0.1},
    .offOnChange = {PanelButton::btnRA, PanelButton::btnSaveOSA, PanelButton::btnMixedAir},
    .offOnClick = {PanelButton::btnRA, PanelButton::btnSaveOSA, PanelButton::btnMixedAir},
    .offAtCalculation = {},
    .offAfterwards = {},
    .onAfterwards = {PanelButton::btnSaveOSA, PanelButton::btnRA},
    .focusAfterwards = {},
};

inline constexpr PanelLabels coolingLabels{
    .tdb = {"Label1", " Dry Bulb Temp"},
    .pressure = {"Label3", "Pressure"},
    .wetBulb = {"Label2", " Wet Bulb Temp"},
    .dewPoint = {"Label16", " Dew Point Temp"},
    .relativeHumidity = {"Label12", " Relative Humidity"},
    .humidityRatio = {"Label17", " Humidity Ratio, W"},
    .grains = {"lblGrains1", " Humidity Ratio, gr"},
    .enthalpy = {"Label24", " Enthalpy, h"},
    .specificVolume = {"Label8", " Specific Volume, v"},
};

inline constexpr PanelRules coolingLoad1{
    .captionEnglish = " Cooling of Moist Air - (English Units)",
    .captionMetric = " Cooling of Moist Air - (Metric / SI Units)",
    .metricHumidityUnit = " g water/kg dry air",
    .labels = coolingLabels,
    .helpEntry = {"mnuHelpCooling", "Help for &Cooling Loads", HelpTopic::Cooling},
    .searchCaption = "&Search for Help On ...",
    .saveCaption = "&Save Results to File",
    .fileSeparator = "mnusep2",
    .actions = "",
    .dryBulbFrame = "Enter Entering Air Dry Bulb Temperature:",
    .allItemsTellChanges = true,
    .hasEntryShortcuts = false,
    .clickEmptiesTdb = false,
    .limitsMetricTdb = true,
    .wetBulbClip = {.english = 0.01, .metric = 0.01},
    .dewPointClip = {.english = 0.01, .metric = 0.01},
    .offOnChange = {},
    .offOnClick = {PanelButton::btnSaveEA, PanelButton::btnSetLA, PanelButton::btnCalcLoad},
    .offAtCalculation = {PanelButton::btnSetLA, PanelButton::btnCalcLoad},
    .offAfterwards = {PanelButton::btnCALCULATE},
    .onAfterwards = {PanelButton::btnSaveEA},
    .focusAfterwards = PanelButton::btnSaveEA,
};

inline constexpr PanelRules heatingLoad1{
    .captionEnglish = " Heating Load Calculator - (English Units)",
    .captionMetric = " Heating Load Calculator - (Metric Units)",
    .metricHumidityUnit = " g moisture/kg dry air",
    .labels = plainLabels,
    .helpEntry = {"mnuHelpHeat", "Help for &Heating Loads", HelpTopic::Heating},
    .searchCaption = "&Search for Help On",
    .saveCaption = "&Save Data to File",
    .fileSeparator = "mnuFiledash2",
    .actions = "Actions:",
    .dryBulbFrame = "First Enter Dry Bulb Temperature and Pressure:",
    .allItemsTellChanges = true,
    .hasEntryShortcuts = false,
    .clickEmptiesTdb = true,
    .limitsMetricTdb = true,
    .wetBulbClip = {.english = 0.1, .metric = 0.05},
    .dewPointClip = {.english = 0.1, .metric = 0.1},
    .offOnChange = {},
    .offOnClick = {PanelButton::btnSaveEnteringAir, PanelButton::btnInputLeavingAir},
    .offAtCalculation = {},
    .offAfterwards = {PanelButton::btnCALCULATE},
    .onAfterwards = {PanelButton::btnSaveEnteringAir, PanelButton::btnInputLeavingAir},
    .focusAfterwards = {},
};

inline constexpr PanelRules humid1{
    .captionEnglish = " Humidification Calculation - (English Units)",
    .captionMetric = " Humidification Calculation - (Metric Units)",
    .metricHumidityUnit = " g moisture/kg dry air",
    .labels = plainLabels,
    .helpEntry = {"mnuHelpHumidity", "Help for Humidity", HelpTopic::Humidification},
    .searchCaption = "&Search for Help On",
    .saveCaption = "&Save Results to File",
    .fileSeparator = "mnuFiledash2",
    .actions = "Actions :",
    .dryBulbFrame = "Enter Outside Air Dry Bulb Temperature and Pressure:",
    .allItemsTellChanges = true,
    .hasEntryShortcuts = false,
    .clickEmptiesTdb = false,
    .limitsMetricTdb = true,
    .wetBulbClip = {.english = 0.1, .metric = 0.05},
    .dewPointClip = {.english = 0.1, .metric = 0.1},
    .offOnChange = {},
    .offOnClick = {PanelButton::btnHumidityDesired},
    .offAtCalculation = {},
    .offAfterwards = {PanelButton::btnCALCULATE},
    .onAfterwards = {PanelButton::btnHumidityDesired},
    .focusAfterwards = {},
};
