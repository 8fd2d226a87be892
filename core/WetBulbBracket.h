#pragma once

#include "core/CheckedArithmetic.h"
#include "core/StatePoint.h"

#include <numeric>

/// The bracket of the wet bulb bisection, with its stopping tests. Its values are singles, rounded each time
/// they are stored.
struct WetBulbBracket
{
    Single upper;
    Single lower;
    Single mid;
    int count = 0;

    explicit WetBulbBracket(Single tdb)
        : upper(RoundToSingle(tdb - 0.005)),
          lower(RoundToSingle(tdb - (IsMetric() ? 50.0 : 70.0))),
          mid(midpoint())
    {}

    /// Keeps the half in which the residual changes sign.
    /// @param product  of the residuals at mid and at lower, not 0
    /// @return         true if the search ends with the new midpoint
    /// @throws RunTimeError division by zero if the new midpoint is exactly 0
    bool narrow(Single product)
    {
        constexpr Single tolerance = 0.01F; // percent of the temperature
        constexpr int mostSteps = 20;

        if (product < 0.0F)
            upper = mid;
        else
            lower = mid;
        const Single old = mid;
        mid = midpoint();
        const double step = Quotient(static_cast<double>(mid) - old, mid);
        const Single error = RoundToSingle(std::fabs(step) * 100.0);
        ++count;
        return error <= tolerance || count > mostSteps;
    }

private:
    /// The same as (lower + upper) / 2 in double, rounded to single.
    Single midpoint() const { return std::midpoint(lower, upper); }
};
