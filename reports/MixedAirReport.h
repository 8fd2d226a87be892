#pragma once

#include "reports/ReportWriter.h"

namespace forms {
class Form;
} // namespace forms

/// Writes one block each for the outside air, the return air and the mixture, from their current snapshots.
/// @throws RunTimeError as WriteAirBlock
void WriteMixedAirReport(ReportWriter& report);

/// The print and save commands of both mixed air screens (see PrintFrame.h, SaveFrame.h).
void PrintMixedAir(const forms::Form& owner);
void SaveMixedAir(const forms::Form& owner);
