#pragma once

#include <QString>

namespace help {

/// Returns the page if the toolkit can lay it out quickly; otherwise its text with a notice. The limits: 256
/// KiB, 4,000 tags, 300 pictures, 10,000 table cells (all rows times the widest row, spans included), tables
/// nested 6 deep, words of 20,000 characters.
QString WithinLimits(const QString& page);

} // namespace help
