#include "reports/Reports.h"

#include "core/CoilLoads.h"
#include "core/NumberPicture.h"
#include "core/UnitTables.h"

namespace {

void writeSummary(ReportWriter& report)
{
    report.underlinedHeading("Heating Load Summary");
    report.labelValueAndUnit("Air Flow Rate = ", FormatNumber(HeatingEnteringAir.AirVolume, "#,###"),
                             UnitLabel(AirVolumeUnit));
    report.labelValueAndUnit("Heating Load = ", FormatNumber(HeatingLoadSingle, "#,###"),
                             UnitLabel(EnergyUnit));
}

} // namespace

void WritePrintedHeatingReport(ReportWriter& report)
{
    report.dateAmidBlankLines();
    WriteAirSection(report, "Heating Entering Air Properties", HeatingEnteringAir);
    report.dateAmidBlankLines();
    WriteAirSection(report, "Heating Leaving Air Properties", HeatingLeavingAir);
    report.dateAmidBlankLines();
    writeSummary(report);
}

void WriteSavedHeatingReport(ReportWriter& report)
{
    report.emptyColumn4Lines(1);
    report.column4DateLine();
    report.emptyColumn4Lines(2);
    WriteAirSection(report, "Heating Entering Air Properties", HeatingEnteringAir);
    report.emptyColumn4Lines(1);
    WriteAirSection(report, "Heating Leaving Air Properties", HeatingLeavingAir);
    report.emptyColumn4Lines(1);
    writeSummary(report);
}

void PrintHeating(const forms::Form& owner)
{
    PrintReport(owner, "Heating Load", "heating.txt", WritePrintedHeatingReport);
}

void SaveHeating(const forms::Form& owner)
{
    SaveReport(owner, "Save Heating Load Data to File", WriteSavedHeatingReport);
}
