#include "core/Single.h"
#include "platform/Settings.h"
#include "table/Row.h"
#include <QString>
