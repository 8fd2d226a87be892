#pragma once

#include <QString>

/// A page as it can be shown on any desktop: without scripts, without colours of its own, with sizes and
/// nesting that a damaged page can't drive beyond bounds. The width of a picture goes into the anchor of its
/// address, for who loads it.
QString PageToShow(const QString& page);

/// A style sheet, or the declarations of one element, without colours, imports, and letters of fixed size.
QString StyleToShow(const QString& style);
