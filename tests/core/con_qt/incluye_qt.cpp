// A core source that includes Qt: the check of the core must find it.
#include "core/core/registros.h"
#include <QString>
