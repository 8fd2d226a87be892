#pragma once

#include "core/Single.h"

/// Candidates whose residual (see WetBulbResidual) has a known sign. It is unknown from negativeBelow to
/// positiveAbove.
struct WetBulbSigns
{
    Single negativeBelow;
    Single positiveAbove;
};

/// Finds the root of the heat balance by Halley's method, and the zone around it in which rounding may change
/// the sign. Knows no sign (the zone is infinite) outside the limits of the proof, without a root in the
/// bracket, or if the root is near the freezing point. Never throws.
/// @param tdb, w, p  as for SolveWetBulb
WetBulbSigns FindWetBulbSigns(Single tdb, Single w, Single p);
