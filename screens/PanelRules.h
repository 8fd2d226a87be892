#pragma once

#include "screens/Help.h"

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
    RowLabel tdb = {"lblTdb1", " Dry Bulb Temp"};
    RowLabel pressure = {"lblP1", " Pressure"};
    RowLabel wetBulb = {"lblTwb1", " Wet Bulb Temp"};
    RowLabel dewPoint = {"lblDewPt1", " Dew Point Temp"};
    RowLabel relativeHumidity = {"lblRH1", " Relative Humidity"};
    RowLabel humidityRatio = {"lblW1", " Humidity ratio, W"};
    RowLabel grains = {"lblGrains1", " Humidity ratio, gr"};
    RowLabel enthalpy = {"lblEnthalpy1", "enthalpy, h"};
    RowLabel specificVolume = {"lblSpVol1", "specific volume, v"};
};

/// The differences between the calculators with an air-state panel, one set for each form. A value that most
/// of them share is the default.
struct PanelRules
{
    const char* captionEnglish = nullptr;
    const char* captionMetric = nullptr;
    /// The unit beside the humidity ratio in Metric.
    const char* metricHumidityUnit = " g moisture/kg dry air";

    PanelLabels labels = {};
    HelpEntry helpEntry = {}; ///< in the help menu
    const char* searchCaption = "&Search for Help On";
    const char* saveCaption = "&Save Results to File";
    const char* fileSeparator = "mnuFiledash2"; ///< the name of the separator before Exit
    const char* actions = "Actions:";
    const char* dryBulbFrame = "First Enter Dry Bulb Temperature and Pressure:";

    /// True if all five humidity fields have a change handler; false if only the wet bulb and the dew point
    /// do.
    bool allItemsTellChanges = true;
    /// True if Enter moves from the dry bulb to the wet bulb, and a mouse press selects the relative humidity
    /// or the grains before the click.
    bool hasEntryShortcuts = false;
    /// True if a click on the dry bulb clears it.
    bool clickEmptiesTdb = false;
    /// True if Metric refuses a dry bulb above 50 degrees.
    bool limitsMetricTdb = true;
    /// A wet bulb or dew point that is not below the dry bulb is set this far below it.
    ByUnits wetBulbClip = {.english = 0.1, .metric = 0.05};
    ByUnits dewPointClip = {.english = 0.1, .metric = 0.1};
};

inline constexpr PanelRules airPropertiesCalc{
    .captionEnglish = " Air Properties Calculator - (English Units)",
    .captionMetric = " Air Properties Calculator - (Metric Units)",
    .helpEntry = {"mnuHelpAirPropCalc", "&Help for Air Properties Calc", HelpTopic::AirProperties},
    .searchCaption = "&Search for Help On ...",
    .fileSeparator = "mnusep2",
    .hasEntryShortcuts = true,
    .wetBulbClip = {.english = 0.01, .metric = 0.01},
    .dewPointClip = {.english = 0.01, .metric = 0.01},
};

inline constexpr PanelRules mixedAir{
    .captionEnglish = " Adiabatic Mixing of Moist Air - (English Units)",
    .captionMetric = " Adiabatic Mixing of Moist Air - (Metric Units)",
    .metricHumidityUnit = " g water/kg dry air",
    .labels = {.humidityRatio = {"lblW1", " Humidity Ratio, W"},
               .grains = {"lblGrains1", " Humidity Ratio, gr"},
               .enthalpy = {"lblEnthalpy1", " Enthalpy, h"},
               .specificVolume = {"lblSpVol1", " Specific Volume, v"}},
    .helpEntry = {"mnuHelpMixedAir", "Help for &Mixed Air", HelpTopic::MixedAir},
    .allItemsTellChanges = false,
    .limitsMetricTdb = false, // Metric, too, accepts up to 125 degrees
};

inline constexpr PanelRules coolingLoad1{
    .captionEnglish = " Cooling of Moist Air - (English Units)",
    .captionMetric = " Cooling of Moist Air - (Metric / SI Units)",
    .metricHumidityUnit = " g water/kg dry air",
    .labels = {.tdb = {"Label1", " Dry Bulb Temp"},
               .pressure = {"Label3", "Pressure"},
               .wetBulb = {"Label2", " Wet Bulb Temp"},
               .dewPoint = {"Label16", " Dew Point Temp"},
               .relativeHumidity = {"Label12", " Relative Humidity"},
               .humidityRatio = {"Label17", " Humidity Ratio, W"},
               .grains = {"lblGrains1", " Humidity Ratio, gr"},
               .enthalpy = {"Label24", " Enthalpy, h"},
               .specificVolume = {"Label8", " Specific Volume, v"}},
    .helpEntry = {"mnuHelpCooling", "Help for &Cooling Loads", HelpTopic::Cooling},
    .searchCaption = "&Search for Help On ...",
    .fileSeparator = "mnusep2",
    .actions = "",
    .dryBulbFrame = "Enter Entering Air Dry Bulb Temperature:",
    .wetBulbClip = {.english = 0.01, .metric = 0.01},
    .dewPointClip = {.english = 0.01, .metric = 0.01},
};

inline constexpr PanelRules heatingLoad1{
    .captionEnglish = " Heating Load Calculator - (English Units)",
    .captionMetric = " Heating Load Calculator - (Metric Units)",
    .helpEntry = {"mnuHelpHeat", "Help for &Heating Loads", HelpTopic::Heating},
    .saveCaption = "&Save Data to File",
    .clickEmptiesTdb = true,
};

inline constexpr PanelRules humid1{
    .captionEnglish = " Humidification Calculation - (English Units)",
    .captionMetric = " Humidification Calculation - (Metric Units)",
    .helpEntry = {"mnuHelpHumidity", "Help for Humidity", HelpTopic::Humidification},
    .actions = "Actions :",
    .dryBulbFrame = "Enter Outside Air Dry Bulb Temperature and Pressure:",
};
