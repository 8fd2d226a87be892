#pragma once

#include "core/AirSnapshot.h"
#include "reports/ReportWriter.h"

inline TaggedNumber AsItIs(const TaggedNumber& value) { return value; }

/// The values of an air block: the numbers of a snapshot, or the texts of fields. The two conversions run
/// when their line is written, so that a failure leaves the lines before it in the report.
struct AirBlock
{
    using Conversion = TaggedNumber (*)(const TaggedNumber& value);

    TaggedNumber Tdb;
    TaggedNumber Twb;
    TaggedNumber td;
    TaggedNumber RH;
    TaggedNumber W;
    TaggedNumber Grains;
    TaggedNumber SpVol;
    TaggedNumber h;
    Conversion fractionOf = AsItIs; ///< from RH, as a fraction
    Conversion shownW = AsItIs;     ///< from W, in lb/lb (English) or g/kg (Metric)
};

/// Lists the properties of the air: eight lines in English mode, seven in Metric, which has no grains.
/// @throws RunTimeError what a conversion throws
void WriteAirBlock(ReportWriter& report, const AirBlock& air);

/// @throws RunTimeError overflow if the humidity ratio in g/kg exceeds the largest single
void WriteAirBlock(ReportWriter& report, const AirSnapshot& air);
