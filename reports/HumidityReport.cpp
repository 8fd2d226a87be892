#include "reports/Reports.h"

#include "core/NumberPicture.h"

namespace {

struct SpacePictures
{
    std::string_view volume;
    std::string_view airChanges;
    std::string_view outsideAir;
};

constexpr SpacePictures OnPaper{.volume = "#,##0", .airChanges = "#,##0.0", .outsideAir = "#,##0"};
constexpr SpacePictures InFile{.volume = "#,##0.#", .airChanges = "#,##0.0#", .outsideAir = "#,##0.#"};

void writeSpaceLine(ReportWriter& report, std::string_view label, const FieldText& text,
                    std::string_view picture)
{
    report.labelValueAndUnit(label, FormatNumber(text.value, picture), text.unit);
}

/// @return the texts, for the rest of the report
HumidityTexts writeSummary(ReportWriter& report, const ReadHumidityTexts& readTexts,
                           const SpacePictures& pictures)
{
    report.underlinedHeading("Humidity Data Summary");
    HumidityTexts texts = readTexts();
    writeSpaceLine(report, "Volume of Space = ", texts.spaceVolume, pictures.volume);
    writeSpaceLine(report, "Air Changes = ", texts.airChanges, pictures.airChanges);
    report.heading("------  OR  -------------------------");
    writeSpaceLine(report, "Infiltration Rate = ", texts.outsideAir, pictures.outsideAir);
    report.rule();
    return texts;
}

void writeMoisture(ReportWriter& report, const HumidityTexts& texts)
{
    report.underlinedHeading("Moisture Required");
    for (const FieldText& text : {texts.massPerHour, texts.massPerDay, texts.flowPerHour, texts.flowPerDay})
        report.valueAndUnit(FormatNumber(text.value, "#,##0.###"), text.unit);
}

} // namespace

void WritePrintedHumidityReport(ReportWriter& report, const ReadHumidityTexts& readTexts)
{
    report.emptyColumn4Lines(1);
    report.column4DateLine();
    report.emptyColumn4Lines(1);
    WriteAirSection(report, "Humidity Initial Air Properties", HumidOutsideAir);
    report.emptyColumn4Lines(2);
    WriteAirSection(report, "Humidified Air Properties", HumidDesiredAir);
    report.emptyColumn4Lines(3);
    const HumidityTexts texts = writeSummary(report, readTexts, OnPaper);
    report.emptyColumn4Lines(2);
    writeMoisture(report, texts);
}

void WriteSavedHumidityReport(ReportWriter& report, const ReadHumidityTexts& readTexts)
{
    report.column4DateLine();
    WriteAirSection(report, "Humidity Initial Air Properties", HumidOutsideAir);
    report.emptyColumn4Lines(1);
    WriteAirSection(report, "Humidified Air Properties", HumidDesiredAir);
    report.emptyColumn4Lines(1);
    const HumidityTexts texts = writeSummary(report, readTexts, InFile);
    writeMoisture(report, texts);
}

void PrintHumidity(const forms::Form& owner, const ReadHumidityTexts& readTexts)
{
    PrintReport(owner, "Humidification", "humidity.txt",
                [&readTexts](ReportWriter& report) { WritePrintedHumidityReport(report, readTexts); });
}

void SaveHumidity(const forms::Form& owner, const ReadHumidityTexts& readTexts)
{
    SaveReport(owner, "Save Humidity Load Data to File",
               [&readTexts](ReportWriter& report) { WriteSavedHumidityReport(report, readTexts); });
}
