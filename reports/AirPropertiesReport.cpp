#include "reports/AirPropertiesReport.h"

#include "reports/PrintFrame.h"
#include "reports/SaveFrame.h"

using namespace forms;

TaggedNumber PrintedFraction(const TaggedNumber& txtRH) { return RoundToSingle(txtRH.asSingle() / 100.0); }
TaggedNumber SavedFraction(const TaggedNumber& txtRH) { return txtRH.asDouble() / 100.0; }

void WriteAirPropertiesReport(ReportWriter& report, const AirPropertiesTexts& fields,
                              AirBlock::Conversion fractionOf)
{
    report.blankLines(2);
    report.dateLine();
    report.blankLines(2);
    report.heading("Calculated Psychrometric Properties");
    report.rule();
    WriteAirBlock(report, AirBlock{.Tdb = fields.txtTdb,
                                   .Twb = fields.txtTwb,
                                   .td = fields.txttd,
                                   .RH = fields.txtRH,
                                   .W = fields.txtW,
                                   .Grains = fields.txtGrains,
                                   .SpVol = fields.txtSpVol,
                                   .h = fields.txth,
                                   .fractionOf = fractionOf});
}

void PrintAirProperties(const Form& owner, const AirPropertiesTexts& fields)
{
    PrintReport(owner, "Airprop.txt", [&fields](ReportWriter& report) {
        WriteAirPropertiesReport(report, fields, PrintedFraction);
    });
}

void SaveAirProperties(const Form& owner, const AirPropertiesTexts& fields)
{
    SaveReport(owner, "Save Data to File",
               [&fields](ReportWriter& report) { WriteAirPropertiesReport(report, fields, SavedFraction); });
}
