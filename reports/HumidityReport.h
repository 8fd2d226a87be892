#pragma once

#include "reports/ReportWriter.h"

#include <functional>
#include <string>

namespace forms {
class Form;
} // namespace forms

/// The texts of the fields and unit labels on the humidification requirement screen.
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

/// Reads the texts from the form, which creates the form if necessary. A report calls this once, at the first
/// line that needs the texts, or never if it fails before that.
using ReadHumidityTexts = std::function<HumidityTexts()>;

/// Write the outside air and the desired air from their snapshots, and the rest from the texts, with each
/// number formatted by a picture. The layouts differ in their blank lines and in the pictures of the space
/// lines.
/// @throws RunTimeError as WriteAirBlock
void WritePrintedHumidityReport(ReportWriter& report, const ReadHumidityTexts& readTexts);
void WriteSavedHumidityReport(ReportWriter& report, const ReadHumidityTexts& readTexts);

/// The print and save commands of both humidification screens (see PrintFrame.h, SaveFrame.h).
void PrintHumidity(const forms::Form& owner, const ReadHumidityTexts& readTexts);
void SaveHumidity(const forms::Form& owner, const ReadHumidityTexts& readTexts);
