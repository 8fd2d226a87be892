#include "reports/Reports.h"

#include "core/NumberPicture.h"
#include "core/UnitTables.h"

namespace {

void writeBlock(ReportWriter& report, std::string_view heading, const AirSnapshot& air)
{
    report.dateAmidBlankLines();
    report.underlinedHeading(heading);
    report.labelValueAndUnit("Air Flow Rate = ", FormatNumber(air.AirVolume, "#,###"),
                             UnitLabel(AirVolumeUnit));
    WriteAirBlock(report, air);
}

} // namespace

void WriteMixedAirReport(ReportWriter& report)
{
    writeBlock(report, "Outside Air Properties", MixedOutsideAir);
    writeBlock(report, "Return Air Properties", MixedReturnAir);
    writeBlock(report, "Mixed Air Properties", MixedResultAir);
}

void PrintMixedAir(const forms::Form& owner)
{
    PrintReport(owner, "Mixed Air", "mixedair.txt", WriteMixedAirReport);
}
void SaveMixedAir(const forms::Form& owner) { SaveReport(owner, "Save Data to File", WriteMixedAirReport); }
