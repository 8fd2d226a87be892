#include "core/Single.h"
#include "platform/forms/Form.h"
#include <QSettings>
