#pragma once

#include "core/Single.h"

// The reference forms of what the program computes faster. They follow the rules word for word: powers come
// from the general power function, and every pass of the search works out both of its residuals afresh and in
// full. The tests hold the fast forms to the same bits and the same errors.

/// SaturationPressure with its powers from std::pow.
Single PlainSaturationPressure(Single T);

/// DewPointFromVaporPressure with its powers from std::pow.
Single PlainDewPointFromVaporPressure(Single pw);

/// WetBulbResidual on PlainSaturationPressure.
Single PlainWetBulbResidual(Single candidate, Single tdb, Single p, Single w);

/// SolveWetBulb with two residuals a pass.
Single PlainSolveWetBulb(Single tdb, Single w, Single p);
