#include "core/WetBulbSearch.h"

#include "core/Relations.h"
#include "core/WetBulbBracket.h"
#include "core/WetBulbSigns.h"

Single WetBulbResidual(Single candidate, Single tdb, Single p, Single w)
{
    const Single absolute = ToAbsolute(candidate);
    const Single saturation = SaturationPressure(absolute);
    const Single wsWet = HumidityRatioFromVaporPressure(saturation, p);
    const Single candidateW = HumidityRatioFromWetBulb(candidate, tdb, wsWet);
    return RoundToSingle(static_cast<double>(candidateW) - w);
}

// Equals PlainSolveWetBulb (tests/core/PlainForms.h), which computes both residuals on every pass. The
// outcome depends only on their signs and on a product of 0. So this form substitutes 1 or -1 for a residual
// of known sign, and keeps the lower residual from the pass that moved the lower end. The first pass computes
// the lower one first, so that failures are the same, too.
//
// The search always ends: each pass returns, throws or is counted by narrow(), which ends the search with the
// 21st, whatever the numbers. narrow() throws at a midpoint of exactly 0, but no dry bulb leads to one: from
// each, a test takes the only way there (tests/core/SearchEndsTest.cpp).
Single SolveWetBulb(Single tdb, Single w, Single p)
{
    const WetBulbSigns signs = FindWetBulbSigns(tdb, w, p);
    const auto residualAt = [&](Single candidate) {
        if (candidate < signs.negativeBelow)
            return -1.0F;
        if (candidate > signs.positiveAbove)
            return 1.0F;
        return WetBulbResidual(candidate, tdb, p, w);
    };
    WetBulbBracket bracket(tdb);
    double lowerResidual = residualAt(bracket.lower);
    while (true) {
        const double residual = residualAt(bracket.mid);
        const Single product = RoundToSingle(residual * lowerResidual); // may underflow to 0
        if (product == 0.0F)
            return bracket.mid;
        if (product > 0.0F)
            lowerResidual = residual;
        if (bracket.narrow(product))
            return bracket.mid;
    }
}
