#pragma once

#include "core/StatePoint.h"
#include "reports/ReportWriter.h"

inline TaggedNumber AsItIs(const TaggedNumber& value) { return value; }

/// The values of an air block: numbers of a snapshot or texts of fields. The two conversions run when their
/// line is written, so after a failure the report has the lines before it.
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
    Conversion fractionOf = AsItIs; ///< converts RH to a fraction
    Conversion shownW = AsItIs;     ///< converts W to lb/lb (English) or g/kg (Metric)
};

/// Writes the properties of the air: eight lines in English, seven in Metric, which has no grains.
/// @throws RunTimeError as the conversions
void WriteAirBlock(ReportWriter& report, const AirBlock& air);

/// @throws RunTimeError overflow if the humidity ratio in g/kg exceeds the largest single
void WriteAirBlock(ReportWriter& report, const AirSnapshot& air);
void WriteAirSection(ReportWriter& report, std::string_view heading, const AirSnapshot& air);
