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

// The plain form works out two residuals on every pass. The one at the lower end is known here from the pass
// that moved that end. The first pass works out the lower one first, as the plain form does, so that a
// failure is the same one too.
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
