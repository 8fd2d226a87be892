#include "tests/core/PlainForms.h"

#include "core/CheckedArithmetic.h"
#include "core/Relations.h"
#include "core/SaturationCurve.h"

Single PlainSaturationPressure(Single T)
{
    const SaturationCurve* curve = SaturationCurveAt(T);
    if (curve == nullptr)
        return 0.0F;
    const double A = std::log(static_cast<double>(T));
    double L = (curve->c1 / T + curve->c2 + curve->c3 * T) + curve->c4 * std::pow(T, 2.0);
    L = L + curve->c5 * std::pow(T, 3.0);
    if (curve->ice)
        L = L + curve->c6 * std::pow(T, 4.0);
    L = L + curve->c7 * A;
    return RoundToSingle(std::exp(L));
}

Single PlainDewPointFromVaporPressure(Single pw)
{
    if (!IsMetric())
        pw = RoundToSingle(pw * KiloPascalPerPsi);
    const Single a = RoundToSingle(NaturalLogarithm(pw));
    const double firstTerms = std::pow(a, 2.0) * 0.7389 + (a * 14.526 + 6.54);
    const double withCube = firstTerms + std::pow(a, 3.0) * 0.09486;
    Single td = RoundToSingle(withCube + std::pow(pw, 0.1984) * 0.4569);
    if (td < 0.0F)
        td = RoundToSingle(std::pow(a, 2.0) * 0.4959 + (a * 12.608 + 6.09));
    if (IsMetric())
        return td;
    return RoundToSingle(td * 1.8 + 32.0);
}

Single PlainWetBulbResidual(Single candidate, Single tdb, Single p, Single w)
{
    const Single a = ToAbsolute(candidate);
    const Single s = PlainSaturationPressure(a);
    const Single ws = HumidityRatioFromVaporPressure(s, p);
    const Single c = HumidityRatioFromWetBulb(candidate, tdb, ws);
    return RoundToSingle(static_cast<double>(c) - w);
}

Single PlainSolveWetBulb(Single tdb, Single w, Single p)
{
    Single upper = RoundToSingle(tdb - 0.005);
    Single lower = RoundToSingle(tdb - (UnitSystem != 0 ? 50.0 : 70.0));
    Single mid = RoundToSingle((static_cast<double>(lower) + upper) / 2.0);
    int count = 0;
    while (true) {
        const Single old = mid;
        const Single atLower = PlainWetBulbResidual(lower, tdb, p, w);
        const Single atMid = PlainWetBulbResidual(mid, tdb, p, w);
        const Single product = RoundToSingle(static_cast<double>(atMid) * atLower);
        if (product < 0)
            upper = mid;
        if (product > 0)
            lower = mid;
        if (product == 0)
            return mid;
        mid = RoundToSingle((static_cast<double>(lower) + upper) / 2.0);
        const double change = std::fabs(Quotient(static_cast<double>(mid) - old, mid));
        const Single err = RoundToSingle(change * 100.0);
        count = count + 1;
        if (err <= 0.01F)
            return mid;
        if (count > 20)
            return mid;
    }
}
