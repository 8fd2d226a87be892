#pragma once

#include "table/Options.h"
#include "table/Output.h"
#include "table/Records.h"

/// How many rows a table had.
struct RowCount
{
    long rows = 0;
    long refused = 0;
};

/// Solves a table with a header: writes its columns, the properties that it lacks, and a note.
/// @throws TableError for a header that it can't use
RowCount SolveCsv(Records& records, Output& output, const TableOptions& options);

/// Solves an hourly weather file in EPW form: writes time stamps, the given values, the properties and a
/// note.
/// @throws TableError if the input is no such file
RowCount SolveEpw(Records& records, Output& output, const TableOptions& options);
