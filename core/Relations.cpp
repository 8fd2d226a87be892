#include "core/Relations.h"

#include "core/CheckedArithmetic.h"
#include "core/SaturationCurve.h"
#include "core/StatePoint.h"
#include "core/WetBulbBalance.h"

Single SaturationPressure(Single T)
{
    const SaturationCurve* curve = SaturationCurveAt(T);
    return curve == nullptr ? 0.0F : RoundToSingle(std::exp(LogSaturationPressure(*curve, T)));
}

Single HumidityRatioFromVaporPressure(Single pw, Single P)
{
    return RoundToSingle(Quotient(pw * WaterToAirMassRatio, static_cast<double>(P) - pw));
}

Single VaporPressureFromRH(Single RH, Single pws) { return RoundToSingle(static_cast<double>(RH) * pws); }

Single DegreeOfSaturation(Single W, Single Ws) { return RoundToSingle(Quotient(W, Ws)); }

Single RHFromDegreeOfSaturation(Single mu, Single pws, Single P)
{
    const double divisor = 1.0 - (1.0 - mu) * Quotient(pws, P);
    return RoundToSingle(Quotient(mu, divisor));
}

Single SpecificVolumeOf(Single T, Single W, Single P)
{
    constexpr Single gasConstantMetric = 8314.41F;  // J/(kmol K)
    constexpr Single gasConstantEnglish = 1545.32F; // ft lbf/(lbmol degrees Rankine)
    constexpr double molarMass = 28.9645;           // kg/kmol or lb/lbmol, dry air
    constexpr double squareInchesPerSquareFoot = 144.0;

    const double moisture = W * 1.6078 + 1.0;
    const double t = T;
    if (IsMetric())
        return RoundToSingle(Quotient(moisture * (t * gasConstantMetric), P * molarMass));
    return RoundToSingle(
        Quotient(moisture * (t * gasConstantEnglish), P * molarMass * squareInchesPerSquareFoot));
}

Single EnthalpyOf(Single t, Single W)
{
    if (IsMetric())
        return RoundToSingle((t * 1.805 + 2501.0) * W + t);
    return RoundToSingle((t * 0.444 + 1061.0) * W + t * 0.24);
}

Single DryBulbFromEnthalpy(Single h, Single W)
{
    if (IsMetric())
        return RoundToSingle(Quotient(h - W * 2501.0, W * 1.805 + 1.0));
    return RoundToSingle(Quotient(h - W * 1061.0, W * 0.444 + 0.24));
}

Single HumidityRatioFromWetBulb(Single twb, Single tdb, Single wsWet)
{
    const WetBulbBalance balance(twb, tdb);
    return RoundToSingle(Quotient(balance.latent * wsWet - balance.sensible, balance.divisor));
}

Single VaporPressureFromHumidityRatio(Single P, Single W)
{
    return RoundToSingle(Quotient(static_cast<double>(P) * W, W + WaterToAirMassRatio));
}

// The square of a single is exact in double, so a product gives the same bits as std::pow. The cube may
// differ from std::pow in its last bit, but the dew point of every positive single was compared: none
// differs.
Single DewPointFromVaporPressure(Single pw)
{
    if (!IsMetric())
        pw = RoundToSingle(pw * KiloPascalPerPsi);
    const Single a = RoundToSingle(NaturalLogarithm(pw));
    const double square = static_cast<double>(a) * a;
    const double cube = square * a;

    Single td = RoundToSingle(((square * 0.7389 + (a * 14.526 + 6.54)) + cube * 0.09486) +
                              std::pow(pw, 0.1984) * 0.4569);
    if (td < 0.0F)
        td = RoundToSingle(square * 0.4959 + (a * 12.608 + 6.09));
    return IsMetric() ? td : RoundToSingle(td * 1.8 + 32.0);
}
