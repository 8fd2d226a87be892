#include "chart/Texts.h"

#include "core/NumberPicture.h"
#include "core/NumberText.h"
#include "core/StatePoint.h"

#include <cmath>
#include <string>

namespace chart {
namespace {

QString number(double value, const char* picture)
{
    return QString::fromStdString(FormatNumber(TaggedNumber(value), picture));
}

QString orDash(const std::optional<Single>& value, const char* picture, double unit = 1)
{
    return value ? number(*value * unit, picture) : QString("–");
}

} // namespace

QString TdbUnit() { return IsMetric() ? "°C" : "°F"; }
QString HumidityRatioUnit() { return IsMetric() ? "g/kg" : "lb/lb"; }
QString EnthalpyUnit() { return IsMetric() ? "kJ/kg" : "Btu/lb"; }
QString SpecificVolumeUnit() { return IsMetric() ? "m³/kg" : "ft³/lb"; }

QString RoundFigure(double value)
{
    return QString::fromStdString(PlainText(QString::number(value, 'g', 9).toDouble()));
}

QString FormatFigure(double value, int decimals)
{
    const std::string picture =
        decimals > 0 ? "#0." + std::string(static_cast<std::size_t>(decimals), '0') : "#0";
    return number(value, picture.c_str());
}

QString HumidityRatioFigure(double w, double step)
{
    const double unit = IsMetric() ? 1000 : 1;
    constexpr double rounding = 1e-6;
    const int decimals = static_cast<int>(std::ceil(-std::log10(step * unit) - rounding));
    return FormatFigure(w * unit, decimals);
}

QString TdbText(double tdb) { return number(tdb, "#0.0") + " " + TdbUnit(); }

QString HumidityRatioText(double w)
{
    return (IsMetric() ? number(w * 1000, "#0.00") : number(w, "#0.0000")) + " " + HumidityRatioUnit();
}

QString RelativeHumidityText(double rh) { return number(rh * 100, "#0.0") + " %"; }

QString PressureText(double pressure)
{
    const double shown = IsMetric() ? pressure / 1000 : pressure;
    return RoundFigure(QString::number(shown, 'g', 6).toDouble()) + (IsMetric() ? " kPa" : " psi");
}

std::vector<Figure> FiguresOf(const Reading& air)
{
    const bool isMetric = IsMetric();
    std::vector<Figure> figures{
        {"Dry bulb", number(air.Tdb, "#0.0"), TdbUnit()},
        {"Wet bulb", orDash(air.Twb, "#0.0"), TdbUnit()},
        {"Dew point", orDash(air.td, "#0.0"), TdbUnit()},
        {"Relative humidity", orDash(air.RH, "#0.0", 100), "%"},
        {"Humidity ratio", isMetric ? number(air.W * 1000.0, "#0.00") : number(air.W, "#0.0000"),
         HumidityRatioUnit()},
        {"Grains", orDash(air.Grains, "#0.0"), "gr/lb"},
        {"Enthalpy", orDash(air.h, "#0.00"), EnthalpyUnit()},
        {"Specific volume", orDash(air.SpVol, isMetric ? "#0.000" : "#0.00"), SpecificVolumeUnit()}};
    if (isMetric)
        std::erase_if(figures, [](const Figure& figure) { return figure.name == "Grains"; });
    return figures;
}

} // namespace chart
