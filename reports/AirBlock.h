#pragma once

#include "core/AirSnapshot.h"
#include "reports/ReportWriter.h"

/// The properties of an air, as every report of snapshots lists them: seven lines in Metric mode, eight in
/// English, the second form of the humidity ratio being in grains.
/// @throws RunTimeError overflow where the humidity ratio in g/kg is past the largest single
void WriteAirBlock(ReportWriter& report, const AirSnapshot& air);
