#include "core/ThermalComfort.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr double celsiusZero = 273.0; // as the standard has it

/// The heat that clothing exchanges with the air and the walls, W/m2.
struct Clothing
{
    const ThermalConditions& around;
    double insulation; ///< m2 K/W
    double area;       ///< times that of the body

    explicit Clothing(const ThermalConditions& conditions)
        : around(conditions),
          insulation(0.155 * conditions.clo),
          area(insulation <= 0.078 ? 1.0 + 1.29 * insulation : 1.05 + 0.645 * insulation)
    {}

    double radiation(double temperature) const
    {
        const double wall = around.tr + celsiusZero;
        const double cloth = temperature + celsiusZero;
        return 3.96e-8 * area * (cloth * cloth * cloth * cloth - wall * wall * wall * wall);
    }

    double convection(double temperature) const
    {
        const double still = 2.38 * std::sqrt(std::sqrt(std::fabs(temperature - around.tdb)));
        const double moving = 12.1 * std::sqrt(around.velocity);
        return area * std::max(still, moving) * (temperature - around.tdb);
    }
};

/// The temperature at which the clothing loses what the skin gives it, deg C. The difference of the two rises
/// with the temperature, so that its sign halves the interval.
double clothingTemperature(const Clothing& clothing, double heat)
{
    const double skin = 35.7 - 0.028 * heat;
    double low = std::min({clothing.around.tdb, clothing.around.tr, skin}) - 1;
    double high = std::max({clothing.around.tdb, clothing.around.tr, skin}) + 1;
    constexpr int halvings = 30;
    for (int count = 0; count < halvings; ++count) {
        const double middle = (low + high) / 2;
        const double lost = clothing.radiation(middle) + clothing.convection(middle);
        (middle + clothing.insulation * lost > skin ? high : low) = middle;
    }
    return (low + high) / 2;
}

/// Through the skin by moisture, by sweat, and by breath, W/m2.
double lostByMoisture(const ThermalConditions& around, double heat)
{
    const double diffusion = 3.05e-3 * (5733.0 - 6.99 * heat - around.vaporPressure);
    const double sweat = heat > 58.15 ? 0.42 * (heat - 58.15) : 0.0;
    const double latentBreath = 1.7e-5 * heat * (5867.0 - around.vaporPressure);
    const double dryBreath = 0.0014 * heat * (34.0 - around.tdb);
    return diffusion + sweat + latentBreath + dryBreath;
}

} // namespace

double PredictedMeanVote(const ThermalConditions& conditions)
{
    const double heat = conditions.met * 58.15;
    const Clothing clothing(conditions);
    const double temperature = clothingTemperature(clothing, heat);
    const double surplus = heat - lostByMoisture(conditions, heat) - clothing.radiation(temperature) -
                           clothing.convection(temperature);
    return (0.303 * std::exp(-0.036 * heat) + 0.028) * surplus;
}

double VaporPressureForVote(double rh, double tdb)
{
    return rh * 1000.0 * std::exp(16.6536 - 4030.183 / (tdb + 235.0));
}
