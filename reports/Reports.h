#pragma once

#include "reports/AirBlock.h"
#include "reports/Commands.h"

#include <string>

// The reports of the calculators, each with its print and save commands. A report is written from the
// current snapshots, even if the calculation is incomplete.
// @throws RunTimeError as WriteAirBlock

// Intentional: printing divides RH by 100 in single, saving in double. The reports differ only if a value is
// right at a rounding boundary.
TaggedNumber PrintedFraction(const TaggedNumber& RH);
TaggedNumber SavedFraction(const TaggedNumber& RH);

/// Writes the texts of the fields, each formatted by a number picture. Only RH must be a number.
/// @throws RunTimeError type mismatch or overflow, from RH; the lines before it are written
void WriteAirPropertiesReport(ReportWriter& report, AirBlock fields, AirBlock::Conversion fractionOf);
void PrintAirProperties(const forms::Form& owner, const AirBlock& fields);
void SaveAirProperties(const forms::Form& owner, const AirBlock& fields);

/// The outside air, the return air and the mixture. Both mixed air screens have the commands.
void WriteMixedAirReport(ReportWriter& report);
void PrintMixedAir(const forms::Form& owner);
void SaveMixedAir(const forms::Form& owner);

/// The entering air, the leaving air and the loads. Printing sets the printer's font and does not reset it.
void WriteCoolingReport(ReportWriter& report);
void PrintCooling(const forms::Form& owner);
void SaveCooling(const forms::Form& owner);

/// The entering air, the leaving air and the load. The printed report has the date above each of its three
/// sections, far to the right. The saved report has it once, at the left.
void WritePrintedHeatingReport(ReportWriter& report);
void WriteSavedHeatingReport(ReportWriter& report);
void PrintHeating(const forms::Form& owner);
void SaveHeating(const forms::Form& owner);

/// The text of a field and the unit beside it.
struct FieldText
{
    std::string value;
    std::string unit;
};

/// The texts on the humidification requirement screen.
struct HumidityTexts
{
    FieldText spaceVolume;
    FieldText airChanges;
    FieldText outsideAir;
    FieldText massPerHour;
    FieldText massPerDay;
    FieldText flowPerHour;
    FieldText flowPerDay;
};

/// Reads the texts from the form, which creates the form if necessary. A report calls this once, at the first
/// line that needs the texts, or never if it fails before that.
using ReadHumidityTexts = std::function<HumidityTexts()>;

/// The outside air and the desired air, and the rest from the texts, with each number formatted by a picture.
/// The layouts differ in their blank lines and in the pictures of the space lines. Both humidification
/// screens have the commands.
void WritePrintedHumidityReport(ReportWriter& report, const ReadHumidityTexts& readTexts);
void WriteSavedHumidityReport(ReportWriter& report, const ReadHumidityTexts& readTexts);
void PrintHumidity(const forms::Form& owner, const ReadHumidityTexts& readTexts);
void SaveHumidity(const forms::Form& owner, const ReadHumidityTexts& readTexts);
