#include "reports/MixedAirReport.h"

#include "core/NumberPicture.h"
#include "core/UnitTables.h"
#include "reports/AirBlock.h"
#include "reports/PrintFrame.h"
#include "reports/SaveFrame.h"

using namespace forms;

namespace {

void WriteBlock(ReportWriter& report, std::string_view heading, const AirSnapshot& air)
{
    report.blankLines(2);
    report.dateLine();
    report.blankLines(2);
    report.heading(heading);
    report.rule();
    report.labelValueAndUnit("Air Flow Rate = ", FormatNumber(air.AirVolume, "#,###"),
                             UnitLabel(AirVolumeUnit));
    WriteAirBlock(report, air);
}

} // namespace

void WriteMixedAirReport(ReportWriter& report)
{
    WriteBlock(report, "Outside Air Properties", MixedOutsideAir);
    WriteBlock(report, "Return Air Properties", MixedReturnAir);
    WriteBlock(report, "Mixed Air Properties", MixedResultAir);
}

void PrintMixedAir(const Form& owner) { PrintReport(owner, "mixedair.txt", WriteMixedAirReport); }
void SaveMixedAir(const Form& owner) { SaveReport(owner, "Save Data to File", WriteMixedAirReport); }
