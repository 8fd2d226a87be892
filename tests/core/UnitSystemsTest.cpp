// How far the English and the Metric equations agree: the same air, at every temperature and humidity of the
// screens.

#include "tests/core/AccuracyDocument.h"
#include "tests/core/CoreTest.h"

#include <algorithm>
#include <cmath>
#include <functional>

namespace {

constexpr double PascalPerPsi = 6894.757293;
constexpr double KiloJoulePerKilogram = 2.326;       // per Btu/lb
constexpr double CubicMeterPerKilogram = 0.06242796; // per ft3/lb
constexpr double EnthalpyAtFreezing = 0.24 * 32.0;   // Btu/lb of dry air, 0 in Metric

/// A property's distance between the two systems, for the same air in both.
struct Property
{
    const char* name;
    const char* unit;
    double bound;
    double (*distance)(const MoistAirState& english, const MoistAirState& metric);
};

double percent(const TaggedNumber& english, const TaggedNumber& metric, double factor)
{
    return 100.0 * std::fabs(english.asDouble() * factor / metric.asDouble() - 1.0);
}

double degrees(const TaggedNumber& fahrenheit, const TaggedNumber& celsius)
{
    return std::fabs((fahrenheit.asDouble() - 32.0) / 1.8 - celsius.asDouble());
}

const std::vector<Property>& properties()
{
    static const std::vector<Property> properties{
        {"saturation pressure", "%", 0.002,
         [](auto& e, auto& m) { return percent(e.Pws, m.Pws, PascalPerPsi); }},
        {"humidity ratio", "%", 0.004, [](auto& e, auto& m) { return percent(e.W, m.W, 1.0); }},
        {"specific volume", "%", 0.002,
         [](auto& e, auto& m) { return percent(e.SpVol, m.SpVol, CubicMeterPerKilogram); }},
        {"enthalpy", "kJ/kg", 0.65,
         [](auto& e, auto& m) { return std::fabs((e.h - EnthalpyAtFreezing) * KiloJoulePerKilogram - m.h); }},
        {"dew point", "deg C", 0.035, [](auto& e, auto& m) { return degrees(e.td, m.td); }},
        {"wet bulb", "deg C", 0.06, [](auto& e, auto& m) { return degrees(e.Twb, m.Twb); }},
    };
    return properties;
}

MoistAirState solved(Boolean16 units, double tdb, double pressure, int percent)
{
    UnitSystem = units;
    StatePoint = {};
    StatePoint.Tdb = RoundToSingle(tdb);
    StatePoint.P = RoundToSingle(pressure);
    StatePoint.RH = static_cast<Single>(percent);
    SolveFromRH();
    return StatePoint;
}

/// Calls the action with the same air in both systems.
void forEveryAir(const std::function<void(const MoistAirState&, const MoistAirState&)>& action)
{
    for (const double pascals : {70000.0, 101325.0}) {
        for (int half = -80; half <= 100; ++half) {
            const double celsius = half / 2.0;
            for (int percent = 2; percent <= 100; percent += 7)
                action(solved(False16, celsius * 1.8 + 32.0, pascals / PascalPerPsi, percent),
                       solved(True16, celsius, pascals, percent));
        }
    }
}

} // namespace

class UnitSystems : public EnglishCore
{};

TEST_F(UnitSystems, AgreeAsFarAsTheirCoefficients)
{
    std::vector<double> worst(properties().size());
    forEveryAir([&](const MoistAirState& english, const MoistAirState& metric) {
        for (std::size_t i = 0; i < worst.size(); ++i) {
            worst[i] = std::max(worst[i], properties()[i].distance(english, metric));
        }
    });
    for (std::size_t i = 0; i < worst.size(); ++i) {
        const Property& property = properties()[i];
        EXPECT_LT(worst[i], property.bound) << property.name;
        ExpectInAccuracyDocument(std::string("| ") + property.name + " | " + Places(worst[i], 3) + ' ' +
                                 property.unit + " |");
    }
}
