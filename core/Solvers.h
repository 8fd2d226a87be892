#pragma once

// One solver for each humidity item that a user can enter. The caller has set Tdb, P (psi or Pa) and the item
// in StatePoint; the solver fills in the rest, each result at once, so that a failure leaves the fields
// reached by then. All throw RunTimeError as the relations they call.

/// From Grains. Above saturation it sets GrainsTooHigh, shows a message and returns with SpVol, h, td and Twb
/// as they were. It works on the scale of English units, which alone offer the item.
void SolveFromGrains();

/// From W. Above saturation it sets HumidityRatioTooHigh, shows a message and returns with Grains, SpVol, h,
/// td and Twb as they were.
void SolveFromW();

/// From Twb. There is no test for saturation and no guard: a wet bulb too far below the dry bulb gives a
/// negative vapour pressure, which the dew point refuses.
void SolveFromWetBulb();

/// From td.
void SolveFromDewPoint();

/// From RH as a percentage, which becomes a fraction between 0.001 and 1.
void SolveFromRH();
