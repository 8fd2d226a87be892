#include "reports/CoolingReport.h"

#include "core/CoolingLoads.h"
#include "core/NumberPicture.h"
#include "core/UnitTables.h"
#include "reports/AirBlock.h"
#include "reports/PrintFrame.h"
#include "reports/SaveFrame.h"

using namespace forms;

namespace {

void BeginSection(ReportWriter& report, std::string_view heading)
{
    report.blankLines(2);
    report.dateLine();
    report.blankLines(2);
    report.heading(heading);
    report.rule();
}

void WriteSummaryLine(ReportWriter& report, std::string_view label, const TaggedNumber& value,
                      const UnitTable& unit)
{
    report.labelValueAndUnit(label, FormatNumber(value, "#,###.0"), UnitLabel(unit));
}

} // namespace

void WriteCoolingReport(ReportWriter& report)
{
    BeginSection(report, "Cooling Entering Air Properties");
    WriteAirBlock(report, CoolingEnteringAir);
    BeginSection(report, "Cooling Leaving Air Properties");
    WriteAirBlock(report, CoolingLeavingAir);
    BeginSection(report, "Cooling Load Summary");
    WriteSummaryLine(report, "Air Flow Rate = ", CoolingEnteringAir.AirVolume, AirVolumeUnit);
    WriteSummaryLine(report, "Sensible Cooling = ", SensibleLoad, EnergyUnit);
    WriteSummaryLine(report, "Latent Cooling = ", LatentLoad, EnergyUnit);
    WriteSummaryLine(report, "Total Cooling = ", TotalLoad, EnergyUnit);
}

void PrintCooling(const Form& owner)
{
    PrintReport(owner, "cooling.txt", WriteCoolingReport,
                PrinterFont{.name = "Arial", .size = 14, .bold = true});
}

void SaveCooling(const Form& owner)
{
    SaveReport(owner, "Save Cooling Load Data to File", WriteCoolingReport);
}
