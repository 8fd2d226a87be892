#pragma once

#include "core/Single.h"

#include <QString>

// Figures and units as the chart writes them, in the units in force.

QString TdbUnit();
QString HumidityRatioUnit();
QString SpecificVolumeUnit();

/// With no digits beyond those of a round figure.
QString RoundFigure(double value);
/// A humidity ratio on an axis of that step: all with as many decimals as the step needs.
QString HumidityRatioFigure(double w, double step);

/// "75.0 °F", "0.0141 lb/lb" or "14.10 g/kg", "40.0 %" (of a fraction), "14.696 psi" (from psi or Pa).
QString TdbText(double tdb);
QString HumidityRatioText(double w);
QString RelativeHumidityText(double rh);
QString PressureText(double pressure);
