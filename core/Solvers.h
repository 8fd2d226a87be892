#pragma once

#include <string>

// One solver for each humidity item that a user can enter. The caller sets Tdb, P (psi or Pa) and the item in
// StatePoint; the solver fills in the rest. Each result is stored at once, so results found before a failure
// remain. All throw RunTimeError as the relations that they call.

/// From Grains. Above saturation, sets GrainsTooHigh, shows a message and leaves SpVol, h, td and Twb
/// unchanged. Uses the English temperature scale in both unit modes; only English offers this item.
void SolveFromGrains();

/// From W. Above saturation, sets HumidityRatioTooHigh, shows a message and leaves Grains, SpVol, h, td and
/// Twb unchanged.
void SolveFromW();

/// From Twb. Does not check for saturation. A wet bulb too far below the dry bulb gives a negative vapor
/// pressure, which the dew point relation refuses.
void SolveFromWetBulb();

/// From td.
void SolveFromDewPoint();

/// From RH in percent. Converts it to a fraction and clamps it to between 0.001 and 1.
void SolveFromRH();

/// Shows the two messages of the solvers, and returns when the user has closed them. The program sets it at
/// start; the default ignores the message.
inline void (*ShowCoreMessage)(const std::string& text) = [](const std::string&) {};
