#pragma once

#include <QString>

namespace chart {

// Figures and units on the chart, in the current units.

QString TdbUnit();
QString HumidityRatioUnit();
QString SpecificVolumeUnit();

/// A round number without the trailing digits of its rounding error.
QString RoundFigure(double value);
/// A humidity ratio with as many decimals as the step of its axis needs.
QString HumidityRatioFigure(double w, double step);

QString TdbText(double tdb);             ///< "75.0 °F"
QString HumidityRatioText(double w);     ///< "0.0141 lb/lb", "14.10 g/kg"
QString RelativeHumidityText(double rh); ///< "40.0 %", from a fraction
QString PressureText(double pressure);   ///< "14.696 psi", from psi or Pa

} // namespace chart
