// Where the program writes its messages for developers.
#pragma once

#include <QLoggingCategory>

Q_DECLARE_LOGGING_CATEGORY(lumivexLog)
