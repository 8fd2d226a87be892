#pragma once

#include "chart/View.h"

namespace forms {
class Form;
} // namespace forms

namespace chart {

/// Copies the chart as a picture of 3000 by 2100 pixels on white.
void CopyPicture(const View& view);
/// Copies the states of the last runs and the pins as a table for a spreadsheet.
void CopyFigures();
/// Asks for a file and saves the chart as PDF, SVG or PNG, by the file's suffix. Adds the suffix if it is
/// missing, and asks before it replaces a file. Tells of a failure, which leaves no part of a file.
void SavePicture(const forms::Form& owner, const View& view);
/// Shows the print dialog, then prints the chart and the table of the states on one landscape page.
void PrintPicture(const forms::Form& owner, const View& view);

} // namespace chart
