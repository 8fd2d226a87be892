#pragma once

#include "reports/AirBlock.h"
#include "reports/ReportWriter.h"

#include <string>

namespace forms {
class Form;
} // namespace forms

/// What stands in the fields of the air properties calculator.
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

// Intentional: printing divides txtRH by 100 in single, saving in double. Only a value at the very edge of a
// rounding differs.
TaggedNumber PrintedFraction(const TaggedNumber& txtRH);
TaggedNumber SavedFraction(const TaggedNumber& txtRH);

/// Writes the field texts, each through a number picture. Only txtRH has to be a number.
/// @throws RunTimeError type mismatch, overflow, from txtRH; the lines before it are written
void WriteAirPropertiesReport(ReportWriter& report, const AirPropertiesTexts& fields,
                              AirBlock::Conversion fractionOf);

/// The calculator's two commands (see PrintFrame.h, SaveFrame.h).
void PrintAirProperties(const forms::Form& owner, const AirPropertiesTexts& fields);
void SaveAirProperties(const forms::Form& owner, const AirPropertiesTexts& fields);
