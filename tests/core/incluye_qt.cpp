// Compiled with the core's include path only: it must fail, because the core has no Qt.
#include "core/core/registros.h"
#include <QString>
