#include "reports/HumidityReport.h"

#include "core/NumberPicture.h"
#include "reports/AirBlock.h"
#include "reports/PrintFrame.h"
#include "reports/SaveFrame.h"

using namespace forms;

namespace {

struct SpacePictures
{
    std::string_view volume;
    std::string_view airChanges;
    std::string_view outsideAir;
};

constexpr SpacePictures OnPaper{.volume = "#,##0", .airChanges = "#,##0.0", .outsideAir = "#,##0"};
constexpr SpacePictures InFile{.volume = "#,##0.#", .airChanges = "#,##0.0#", .outsideAir = "#,##0.#"};

void WriteAir(ReportWriter& report, std::string_view heading, const AirSnapshot& air)
{
    report.heading(heading);
    report.rule();
    WriteAirBlock(report, air);
}

void WriteSpace(ReportWriter& report, const HumidityTexts& texts, const SpacePictures& pictures)
{
    report.labelValueAndUnit("Volume of Space = ", FormatNumber(texts.txtVol, pictures.volume),
                             texts.lblSpaceVol);
    report.labelValueAndUnit("Air Changes = ", FormatNumber(texts.txtAC, pictures.airChanges), texts.lblAC);
    report.heading("------  OR  -------------------------");
    report.labelValueAndUnit("Infiltration Rate = ", FormatNumber(texts.txtOSA, pictures.outsideAir),
                             texts.lblOSAFlow2);
    report.rule();
}

/// @return the texts, for the rest of the report
HumidityTexts WriteSummary(ReportWriter& report, const ReadHumidityTexts& readTexts,
                           const SpacePictures& pictures)
{
    report.heading("Humidity Data Summary");
    report.rule();
    HumidityTexts texts = readTexts();
    WriteSpace(report, texts, pictures);
    return texts;
}

void WriteMoistureLine(ReportWriter& report, const std::string& value, const std::string& unit)
{
    report.valueAndUnit(FormatNumber(value, "#,##0.###"), unit);
}

void WriteMoisture(ReportWriter& report, const HumidityTexts& texts)
{
    report.heading("Moisture Required");
    report.rule();
    WriteMoistureLine(report, texts.txtMassPerHour, texts.lblMassPerHour);
    WriteMoistureLine(report, texts.txtMassPerDay, texts.lblMassPerDay);
    WriteMoistureLine(report, texts.txtFlowPerHour, texts.lblFlowPerHour);
    WriteMoistureLine(report, texts.txtFlowPerDay, texts.lblFlowPerDay);
}

} // namespace

void WritePrintedHumidityReport(ReportWriter& report, const ReadHumidityTexts& readTexts)
{
    report.emptyColumn4Lines(1);
    report.column4DateLine();
    report.emptyColumn4Lines(1);
    WriteAir(report, "Humidity Initial Air Properties", HumidOutsideAir);
    report.emptyColumn4Lines(2);
    WriteAir(report, "Humidified Air Properties", HumidDesiredAir);
    report.emptyColumn4Lines(3);
    const HumidityTexts texts = WriteSummary(report, readTexts, OnPaper);
    report.emptyColumn4Lines(2);
    WriteMoisture(report, texts);
}

void WriteSavedHumidityReport(ReportWriter& report, const ReadHumidityTexts& readTexts)
{
    report.column4DateLine();
    WriteAir(report, "Humidity Initial Air Properties", HumidOutsideAir);
    report.emptyColumn4Lines(1);
    WriteAir(report, "Humidified Air Properties", HumidDesiredAir);
    report.emptyColumn4Lines(1);
    const HumidityTexts texts = WriteSummary(report, readTexts, InFile);
    WriteMoisture(report, texts);
}

void PrintHumidity(const Form& owner, const ReadHumidityTexts& readTexts)
{
    PrintReport(owner, "humidity.txt",
                [&readTexts](ReportWriter& report) { WritePrintedHumidityReport(report, readTexts); });
}

void SaveHumidity(const Form& owner, const ReadHumidityTexts& readTexts)
{
    SaveReport(owner, "Save Humidity Load Data to File",
               [&readTexts](ReportWriter& report) { WriteSavedHumidityReport(report, readTexts); });
}
