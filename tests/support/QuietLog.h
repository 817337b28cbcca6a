// For tests of broken files.
#pragma once

#include "platform/imageio/ImageLog.h"

/// While it lives nothing is logged.
struct QuietLog {
    QuietLog()
    {
        setImageLog([](std::string_view) {});
    }
    ~QuietLog() { setImageLog({}); }
};
