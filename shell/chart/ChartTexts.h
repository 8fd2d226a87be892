#pragma once

#include "core/Single.h"

#include <QString>

// Figures and units as the chart writes them, in the units in force.

QString TdbUnit();
QString HumidityRatioUnit();
QString SpecificVolumeUnit();

/// With no digits beyond those of a round figure.
QString RoundFigure(double value);
/// A humidity ratio as a round figure of its axis.
QString RoundHumidityRatio(double w);

/// "75.0 °F", "0.0141 lb/lb" or "14.10 g/kg", "40.0 %" (of a fraction), "14.696 psi" (from psi or Pa).
QString TdbText(double tdb);
QString HumidityRatioText(double w);
QString RelativeHumidityText(double rh);
QString PressureText(double pressure);
