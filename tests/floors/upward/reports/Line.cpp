#include "reports/Line.h"
#include "core/Single.h"
#include "platform/Printer.h"
#include "screens/Panel.h"
