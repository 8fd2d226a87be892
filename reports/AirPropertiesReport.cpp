#include "reports/AirPropertiesReport.h"

#include "core/NumberPicture.h"
#include "core/NumberText.h"
#include "core/StatePoint.h"
#include "core/UnitTables.h"
#include "reports/PrintFrame.h"
#include "reports/SaveFrame.h"

namespace {

TaggedNumber FractionOfPercent(const std::string& text, PercentReading reading)
{
    const double percent = ParseDouble(text);
    if (reading == PercentReading::InDouble)
        return percent / 100.0;
    return RoundToSingle(RoundToSingle(percent) / 100.0);
}

void WriteHumidityRatio(ReportWriter& report, const AirPropertiesTexts& fields)
{
    if (IsMetric()) {
        report.labelValueAndUnit("Humidity Ratio (W) = ", FormatNumber(fields.txtW, "0.0###"),
                                 UnitLabel(HumidityUnit));
    } else {
        report.labelValueAndUnit("Humidity Ratio (grains) = ", FormatNumber(fields.txtGrains, "###.#"),
                                 " grains ");
        report.labelValueAndUnit("Humidity Ratio (W) = ", FormatNumber(fields.txtW, "0.#######"),
                                 UnitLabel(HumidityUnit));
    }
}

} // namespace

void WriteAirPropertiesReport(ReportWriter& report, const AirPropertiesTexts& fields, PercentReading reading)
{
    report.blankLines(2);
    report.dateLine();
    report.blankLines(2);
    report.heading("Calculated Psychrometric Properties");
    report.rule();
    report.labelValueAndUnit("Dry Bulb Temp = ", FormatNumber(fields.txtTdb, "##0.0"), UnitLabel(TempUnit));
    report.labelValueAndUnit("Wet Bulb Temp = ", FormatNumber(fields.txtTwb, "##0.0"), UnitLabel(TempUnit));
    report.labelValueAndUnit("Dew Point Temp = ", FormatNumber(fields.txttd, "##0.0"), UnitLabel(TempUnit));
    report.labelAndValue("Relative Humidity = ",
                         FormatNumber(FractionOfPercent(fields.txtRH, reading), "0.0%"));
    WriteHumidityRatio(report, fields);
    report.labelValueAndUnit("Specific Volume = ", FormatNumber(fields.txtSpVol, "##0.###"),
                             UnitLabel(SpVolUnit));
    report.labelValueAndUnit("Enthalpy = ", FormatNumber(fields.txth, "#0.##"), UnitLabel(EnthalpyUnit));
}

void PrintAirProperties(const Form& owner, const AirPropertiesTexts& fields)
{
    PrintReport(owner, "Airprop.txt", [&fields](ReportWriter& report) {
        WriteAirPropertiesReport(report, fields, PercentReading::InSingle);
    });
}

void SaveAirProperties(const Form& owner, const AirPropertiesTexts& fields)
{
    SaveReport(owner, "Save Data to File", [&fields](ReportWriter& report) {
        WriteAirPropertiesReport(report, fields, PercentReading::InDouble);
    });
}
