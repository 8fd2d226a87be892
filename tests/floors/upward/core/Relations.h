#include "core/Single.h"
#include "platform/Settings.h"
#include <QString>
#include <cmath>
#include <math.h>
