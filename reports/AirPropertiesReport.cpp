#include "reports/Reports.h"

TaggedNumber PrintedFraction(const TaggedNumber& RH) { return RoundToSingle(RH.asSingle() / 100.0); }
TaggedNumber SavedFraction(const TaggedNumber& RH) { return RH.asDouble() / 100.0; }

void WriteAirPropertiesReport(ReportWriter& report, AirBlock fields, AirBlock::Conversion fractionOf)
{
    report.dateAmidBlankLines();
    report.underlinedHeading("Calculated Psychrometric Properties");
    fields.fractionOf = fractionOf;
    WriteAirBlock(report, fields);
}

void PrintAirProperties(const forms::Form& owner, const AirBlock& fields)
{
    PrintReport(owner, "Air Properties", "Airprop.txt", [&fields](ReportWriter& report) {
        WriteAirPropertiesReport(report, fields, PrintedFraction);
    });
}

void SaveAirProperties(const forms::Form& owner, const AirBlock& fields)
{
    SaveReport(owner, "Save Data to File",
               [&fields](ReportWriter& report) { WriteAirPropertiesReport(report, fields, SavedFraction); });
}
