#include "chart/Picture.h"
#include "reports/Line.h"
#include "screens/Shell.h"
#include "shell/About.h"
