#include "shell/picture/Chart.h"
#include "core/Relations.h"
#include "platform/Settings.h"
#include "reports/Line.h"
#include "screens/Panel.h"
#include <QPainter>
