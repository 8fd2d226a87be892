#include "reports/Reports.h"

#include "core/CoilLoads.h"
#include "core/NumberPicture.h"
#include "core/UnitTables.h"

namespace {

void writeSummaryLine(ReportWriter& report, std::string_view label, const TaggedNumber& value,
                      const UnitTable& unit)
{
    report.labelValueAndUnit(label, FormatNumber(value, "#,###.0"), UnitLabel(unit));
}

} // namespace

void WriteCoolingReport(ReportWriter& report)
{
    report.dateAmidBlankLines();
    WriteAirSection(report, "Cooling Entering Air Properties", CoolingEnteringAir);
    report.dateAmidBlankLines();
    WriteAirSection(report, "Cooling Leaving Air Properties", CoolingLeavingAir);
    report.dateAmidBlankLines();
    report.underlinedHeading("Cooling Load Summary");
    writeSummaryLine(report, "Air Flow Rate = ", CoolingEnteringAir.AirVolume, AirVolumeUnit);
    writeSummaryLine(report, "Sensible Cooling = ", SensibleLoad, EnergyUnit);
    writeSummaryLine(report, "Latent Cooling = ", LatentLoad, EnergyUnit);
    writeSummaryLine(report, "Total Cooling = ", TotalLoad, EnergyUnit);
}

void PrintCooling(const forms::Form& owner)
{
    PrintReport(owner, "Cooling Load", "cooling.txt", WriteCoolingReport,
                PrinterFont{.name = "Arial", .size = 14, .bold = true});
}

void SaveCooling(const forms::Form& owner)
{
    SaveReport(owner, "Save Cooling Load Data to File", WriteCoolingReport);
}
