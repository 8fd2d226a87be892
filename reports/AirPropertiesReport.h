#pragma once

#include "reports/AirBlock.h"
#include "reports/ReportWriter.h"

#include <string>

namespace forms {
class Form;
} // namespace forms

/// The texts in the fields of the air properties calculator.
struct AirPropertiesTexts
{
    std::string txtTdb;
    std::string txtTwb;
    std::string txttd;
    std::string txtRH;
    std::string txtW;
    std::string txtGrains;
    std::string txtSpVol;
    std::string txth;
};

// Intentional: printing divides txtRH by 100 in single, saving in double. The reports differ only if a value
// is right at a rounding boundary.
TaggedNumber PrintedFraction(const TaggedNumber& txtRH);
TaggedNumber SavedFraction(const TaggedNumber& txtRH);

/// Writes the field texts, each formatted by a number picture. Only txtRH must be a number.
/// @throws RunTimeError type mismatch or overflow, from txtRH; the lines before it are written
void WriteAirPropertiesReport(ReportWriter& report, const AirPropertiesTexts& fields,
                              AirBlock::Conversion fractionOf);

/// The calculator's print and save commands (see PrintFrame.h, SaveFrame.h).
void PrintAirProperties(const forms::Form& owner, const AirPropertiesTexts& fields);
void SaveAirProperties(const forms::Form& owner, const AirPropertiesTexts& fields);
