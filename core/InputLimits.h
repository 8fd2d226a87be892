#pragma once

// The limits of entered values, before a solver runs. Each clip function reads its item in StatePoint and, if
// it is outside its limits, replaces it. Returns the warning, or nullptr if nothing was clipped.

#include "core/Single.h"

constexpr Single LowestTdb = -40.0F;
constexpr Single HighestTdb = 125.0F;      ///< deg F; Metric reports temperatures above this differently
constexpr Single HighestMetricTdb = 50.0F; ///< deg C

/// Sets a wet bulb that is not below the dry bulb to `gap` degrees below it.
const char* ClipWetBulb(double gap);

/// Sets a dew point that is not below the dry bulb to `gap` degrees below it.
const char* ClipDewPoint(double gap);

/// Clips a relative humidity in percent to between 0.1 and 100. Values above 0 and below 0.1 pass.
const char* ClipRelativeHumidity();

/// Clips to at least 0.00001. Intentional: kg/kg in Metric, too.
const char* ClipHumidityRatio();

/// Clips to at least 0.1.
const char* ClipGrains();
