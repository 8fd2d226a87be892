#pragma once

#include "core/Single.h"

// Reference forms of the optimized computations. They follow the equations literally: powers come from
// std::pow, and every pass of the search computes both residuals anew. The tests require the optimized forms
// to give the same bits and the same errors.

/// SaturationPressure with its powers from std::pow.
Single PlainSaturationPressure(Single T);

/// DewPointFromVaporPressure with its powers from std::pow.
Single PlainDewPointFromVaporPressure(Single pw);

/// WetBulbResidual on PlainSaturationPressure.
Single PlainWetBulbResidual(Single candidate, Single tdb, Single p, Single w);

/// SolveWetBulb with two residuals per pass.
Single PlainSolveWetBulb(Single tdb, Single w, Single p);
