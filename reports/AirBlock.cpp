#include "reports/AirBlock.h"

#include "core/NumberPicture.h"
#include "core/UnitTables.h"

namespace {

TaggedNumber gramsPerKilogram(const TaggedNumber& W) { return RoundToSingle(W.asDouble() * 1000.0); }

} // namespace

void WriteAirBlock(ReportWriter& report, const AirBlock& air)
{
    report.labelValueAndUnit("Dry Bulb Temp = ", FormatNumber(air.Tdb, "##0.0"), UnitLabel(TempUnit));
    report.labelValueAndUnit("Wet Bulb Temp = ", FormatNumber(air.Twb, "##0.0"), UnitLabel(TempUnit));
    report.labelValueAndUnit("Dew Point Temp = ", FormatNumber(air.td, "##0.0"), UnitLabel(TempUnit));
    report.labelAndValue("Relative Humidity = ", FormatNumber(air.fractionOf(air.RH), "0.0%"));
    if (!IsMetric())
        report.labelValueAndUnit("Humidity Ratio (grains) = ", FormatNumber(air.Grains, "###.#"), " grains ");
    report.labelValueAndUnit(
        "Humidity Ratio (W) = ", FormatNumber(air.shownW(air.W), IsMetric() ? "0.0###" : "0.#######"),
        UnitLabel(HumidityUnit));
    report.labelValueAndUnit("Specific Volume = ", FormatNumber(air.SpVol, "##0.###"), UnitLabel(SpVolUnit));
    report.labelValueAndUnit("Enthalpy = ", FormatNumber(air.h, "#0.##"), UnitLabel(EnthalpyUnit));
}

void WriteAirBlock(ReportWriter& report, const AirSnapshot& air)
{
    WriteAirBlock(report, AirBlock{.Tdb = air.Tdb,
                                   .Twb = air.Twb,
                                   .td = air.td,
                                   .RH = air.RH,
                                   .W = air.W,
                                   .Grains = air.Grains,
                                   .SpVol = air.SpVol,
                                   .h = air.h,
                                   .shownW = IsMetric() ? gramsPerKilogram : AsItIs});
}

void WriteAirSection(ReportWriter& report, std::string_view heading, const AirSnapshot& air)
{
    report.underlinedHeading(heading);
    WriteAirBlock(report, air);
}
