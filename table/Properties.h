#pragma once

#include "table/Output.h"
#include "table/Row.h"

/// Writes the column names of the properties that the input lacks, each after a comma, and of the note.
void AddPropertyNames(Output& output, Item given);

/// Writes the properties of StatePoint in the same columns, or leaves them empty, and the note.
void AddProperties(Output& output, Item given, bool isSolved, const std::string& note);
