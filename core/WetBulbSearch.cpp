#include "core/WetBulbSearch.h"

#include "core/Relations.h"
#include "core/WetBulbBracket.h"

Single WetBulbResidual(Single candidate, Single tdb, Single p, Single w)
{
    const Single absolute = ToAbsolute(candidate);
    const Single saturation = SaturationPressure(absolute);
    const Single wsWet = HumidityRatioFromVaporPressure(saturation, p);
    const Single candidateW = HumidityRatioFromWetBulb(candidate, tdb, wsWet);
    return RoundToSingle(static_cast<double>(candidateW) - w);
}

// Equals PlainSolveWetBulb (tests/core/PlainForms.h), which computes both residuals on every pass. This form
// keeps the lower residual from the pass that moved the lower end. The first pass computes the lower one
// first, so that failures are the same, too.
Single SolveWetBulb(Single tdb, Single w, Single p)
{
    WetBulbBracket bracket(tdb);
    double lowerResidual = WetBulbResidual(bracket.lower, tdb, p, w);
    while (true) {
        const double residual = WetBulbResidual(bracket.mid, tdb, p, w);
        const Single product = RoundToSingle(residual * lowerResidual); // may underflow to 0
        if (product == 0.0F)
            return bracket.mid;
        if (product > 0.0F)
            lowerResidual = residual;
        if (bracket.narrow(product))
            return bracket.mid;
    }
}
