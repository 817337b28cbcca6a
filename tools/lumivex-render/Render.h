// Renders what the command line asks for.
#pragma once

#include "tools/lumivex-render/Arguments.h"

#include "platform/coreimage/CIFilter.h"

#include <memory>
#include <optional>
#include <string>

/// Milliseconds of rendering alone.
struct RenderTimes {
    double median = 0, min = 0, max = 0;
};

/// Throws UsageError when there is no such filter.
std::shared_ptr<CIFilter> filterNamed(const std::string& name);

/// Renders and writes the output file; answers times if a repetition was asked for. Throws UsageError for
/// unknown keys, unfit values, unreadable pictures and what can't be rendered or written; there is no file then.
std::optional<RenderTimes> render(const Arguments&);
