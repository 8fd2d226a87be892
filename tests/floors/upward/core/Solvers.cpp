#include "../reports/Line.h"
#include "Single.h"
#include "core/Relations.h"
#include <shell/MainForm.h> // [a spelling; with a trap
#include RELATIONS
