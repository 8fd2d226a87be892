#pragma once

#include "reports/ReportWriter.h"

#include <functional>
#include <string>

namespace forms {
class Form;
} // namespace forms

/// What stands in the fields and the unit labels of the humidification requirement.
struct HumidityTexts
{
    std::string txtVol;
    std::string txtAC;
    std::string txtOSA;
    std::string txtMassPerHour;
    std::string txtMassPerDay;
    std::string txtFlowPerHour;
    std::string txtFlowPerDay;
    std::string lblSpaceVol;
    std::string lblAC;
    std::string lblOSAFlow2;
    std::string lblMassPerHour;
    std::string lblMassPerDay;
    std::string lblFlowPerHour;
    std::string lblFlowPerDay;
};

/// Reads them off the form, which makes the form where there is none. So a report asks once, when it has come
/// to its first line of them, and not at all where it doesn't get that far.
using ReadHumidityTexts = std::function<HumidityTexts()>;

/// Write the outside air and the desired air from their snapshots, the rest from the texts, each number
/// through a picture. The two layouts differ in their empty lines and in the pictures of the space lines.
/// @throws RunTimeError as WriteAirBlock
void WritePrintedHumidityReport(ReportWriter& report, const ReadHumidityTexts& readTexts);
void WriteSavedHumidityReport(ReportWriter& report, const ReadHumidityTexts& readTexts);

/// The two commands of both humidification screens (see PrintFrame.h, SaveFrame.h).
void PrintHumidity(const forms::Form& owner, const ReadHumidityTexts& readTexts);
void SaveHumidity(const forms::Form& owner, const ReadHumidityTexts& readTexts);
