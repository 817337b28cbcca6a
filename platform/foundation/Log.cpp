#include "platform/foundation/Log.h"

Q_LOGGING_CATEGORY(lumivexLog, "lumivex")
