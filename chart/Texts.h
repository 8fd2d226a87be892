#pragma once

#include "chart/Reading.h"

#include <QString>

#include <vector>

namespace chart {

// Figures and units on the chart, in the current units.

QString TdbUnit();
QString HumidityRatioUnit();
QString EnthalpyUnit();
QString SpecificVolumeUnit();

/// A round number without the trailing digits of its rounding error.
QString RoundFigure(double value);
/// With that many decimals.
QString FormatFigure(double value, int decimals);
/// A humidity ratio with as many decimals as the step of its axis needs.
QString HumidityRatioFigure(double w, double step);

QString TdbText(double tdb);             ///< "75.0 °F"
QString HumidityRatioText(double w);     ///< "0.0141 lb/lb", "14.10 g/kg"
QString RelativeHumidityText(double rh); ///< "40.0 %", from a fraction
QString PressureText(double pressure);   ///< "14.696 psi", from psi or Pa

/// A property of the air as it is shown.
struct Figure
{
    QString name;  ///< "Wet bulb"
    QString value; ///< "62.4", or a dash if the reading does not have it
    QString unit;  ///< "°F"
};

/// All properties of a reading, in the order of the calculators, without the pressure.
std::vector<Figure> FiguresOf(const Reading& air);

} // namespace chart
