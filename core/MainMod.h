#pragma once

// Includes the calculator's state, the relations of moist air, the solvers, and numbers as text. Mixing,
// loads and humidification have their own headers.

#include "core/LastRuns.h"
#include "core/NumberPicture.h"
#include "core/NumberText.h"
#include "core/Relations.h"
#include "core/Solvers.h"
#include "core/StatePoint.h"
#include "core/TaggedNumber.h"
#include "core/UnitTables.h"
#include "core/WetBulbSearch.h"
