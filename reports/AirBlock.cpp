#include "reports/AirBlock.h"

#include "core/NumberPicture.h"
#include "core/UnitTables.h"

namespace {

void WriteHumidityRatio(ReportWriter& report, const AirSnapshot& air)
{
    if (IsMetric()) {
        const Single gramsPerKilogram = RoundToSingle(air.W * 1000.0);
        report.labelValueAndUnit("Humidity Ratio (W) = ", FormatNumber(gramsPerKilogram, "0.0###"),
                                 UnitLabel(HumidityUnit));
    } else {
        report.labelValueAndUnit("Humidity Ratio (grains) = ", FormatNumber(air.Grains, "###.#"), " grains ");
        report.labelValueAndUnit("Humidity Ratio (W) = ", FormatNumber(air.W, "0.#######"),
                                 UnitLabel(HumidityUnit));
    }
}

} // namespace

void WriteAirBlock(ReportWriter& report, const AirSnapshot& air)
{
    report.labelValueAndUnit("Dry Bulb Temp = ", FormatNumber(air.Tdb, "##0.0"), UnitLabel(TempUnit));
    report.labelValueAndUnit("Wet Bulb Temp = ", FormatNumber(air.Twb, "##0.0"), UnitLabel(TempUnit));
    report.labelValueAndUnit("Dew Point Temp = ", FormatNumber(air.td, "##0.0"), UnitLabel(TempUnit));
    report.labelAndValue("Relative Humidity = ", FormatNumber(air.RH, "0.0%"));
    WriteHumidityRatio(report, air);
    report.labelValueAndUnit("Specific Volume = ", FormatNumber(air.SpVol, "##0.###"), UnitLabel(SpVolUnit));
    report.labelValueAndUnit("Enthalpy = ", FormatNumber(air.h, "#0.##"), UnitLabel(EnthalpyUnit));
}
