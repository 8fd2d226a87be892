#pragma once

#include "reports/ReportWriter.h"

namespace forms {
class Form;
} // namespace forms

/// Writes the outside air, the return air and the mixture, a block each, from their snapshots as they stand.
/// @throws RunTimeError as WriteAirBlock
void WriteMixedAirReport(ReportWriter& report);

/// The two commands of both mixed air screens (see PrintFrame.h, SaveFrame.h).
void PrintMixedAir(const forms::Form& owner);
void SaveMixedAir(const forms::Form& owner);
