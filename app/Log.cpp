#include "app/Log.h"

Q_LOGGING_CATEGORY(lumivexLog, "lumivex")
