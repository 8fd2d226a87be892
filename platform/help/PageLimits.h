#pragma once

#include <QString>

namespace help {

/// A page that the toolkit can lay out in a moment: the page itself, or, if it is too large, its text with a
/// line that says so. Too large is a page of more than 256 KiB, 4,000 tags or 300 pictures, with tables of
/// more than 10,000 cells (all rows times the widest one, as far as they span), with tables nested deeper
/// than 6, or with a word of more than 20,000 characters.
QString WithinLimits(const QString& page);

} // namespace help
