#include "reports/HeatingReport.h"

#include "core/HeatingLoads.h"
#include "core/NumberPicture.h"
#include "core/UnitTables.h"
#include "reports/AirBlock.h"
#include "reports/PrintFrame.h"
#include "reports/SaveFrame.h"

using namespace forms;

namespace {

void WriteEnteringAir(ReportWriter& report)
{
    report.heading("Heating Entering Air Properties");
    report.rule();
    WriteAirBlock(report, HeatingEnteringAir);
}

void WriteLeavingAir(ReportWriter& report)
{
    report.heading("Heating Leaving Air Properties");
    report.rule();
    WriteAirBlock(report, HeatingLeavingAir);
}

void WriteSummary(ReportWriter& report)
{
    report.heading("Heating Load Summary");
    report.rule();
    report.labelValueAndUnit("Air Flow Rate = ", FormatNumber(HeatingEnteringAir.AirVolume, "#,###"),
                             UnitLabel(AirVolumeUnit));
    report.labelValueAndUnit("Heating Load = ", FormatNumber(HeatingLoadSingle, "#,###"),
                             UnitLabel(EnergyUnit));
}

void WriteDateAmidBlanks(ReportWriter& report)
{
    report.blankLines(2);
    report.dateLine();
    report.blankLines(2);
}

} // namespace

void WritePrintedHeatingReport(ReportWriter& report)
{
    WriteDateAmidBlanks(report);
    WriteEnteringAir(report);
    WriteDateAmidBlanks(report);
    WriteLeavingAir(report);
    WriteDateAmidBlanks(report);
    WriteSummary(report);
}

void WriteSavedHeatingReport(ReportWriter& report)
{
    report.emptyColumn4Lines(1);
    report.column4DateLine();
    report.emptyColumn4Lines(2);
    WriteEnteringAir(report);
    report.emptyColumn4Lines(1);
    WriteLeavingAir(report);
    report.emptyColumn4Lines(1);
    WriteSummary(report);
}

void PrintHeating(const Form& owner) { PrintReport(owner, "heating.txt", WritePrintedHeatingReport); }

void SaveHeating(const Form& owner)
{
    SaveReport(owner, "Save Heating Load Data to File", WriteSavedHeatingReport);
}
