#include "chart/Picture.h"
#include "core/Relations.h"
#include "platform/Settings.h"
#include "platform/forms/Form.h"
#include "platform/forms/Picture.h"
#include "reports/Line.h"
#include <QPainter>
