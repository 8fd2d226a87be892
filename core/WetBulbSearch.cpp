#include "core/WetBulbSearch.h"

#include "core/CheckedArithmetic.h"
#include "core/Relations.h"
#include "core/ResidualSign.h"
#include "core/WetBulbBracket.h"

Single WetBulbResidual(Single candidate, Single tdb, Single p, Single w)
{
    const Single absolute = ToAbsolute(candidate);
    const Single saturation = SaturationPressure(absolute);
    const Single wsWet = HumidityRatioFromVaporPressure(saturation, p);
    const Single candidateW = HumidityRatioFromWetBulb(candidate, tdb, wsWet);
    return RoundToSingle(static_cast<double>(candidateW) - w);
}

namespace {

/// The sign of the product of two residuals, the product rounded to single. It may underflow to 0.
int SignOfProduct(Single lowerResidual, Single residual)
{
    const Single product = RoundToSingle(static_cast<double>(residual) * lowerResidual);
    return product > 0.0F ? 1 : product < 0.0F ? -1 : 0;
}

} // namespace

// The plain form works out two residuals on every pass. Here the one at the lower end is known from the pass
// that moved that end, and a sign that is certain is taken without its residual. The residuals that are
// worked out come in the plain form's order, the lower one first, so that a failure is the same one too.
Single SolveWetBulb(Single tdb, Single w, Single p)
{
    const ResidualSign sign(tdb, p, w);
    WetBulbBracket bracket(tdb);
    int lowerSign = sign.at(bracket.lower);
    while (true) {
        const int midSign = sign.at(bracket.mid);
        int product = lowerSign * midSign;
        if (product == 0) {
            const Single lowerResidual = WetBulbResidual(bracket.lower, tdb, p, w);
            product = SignOfProduct(lowerResidual, WetBulbResidual(bracket.mid, tdb, p, w));
            if (product == 0)
                return bracket.mid;
        }
        if (product > 0)
            lowerSign = midSign;
        if (bracket.narrow(product))
            return bracket.mid;
    }
}
