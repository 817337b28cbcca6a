// A filter's attributes as JSON.
#pragma once

#include "platform/coreimage/CIFilter.h"

#include <string>

/// One object: the filter's own entries, then one object for each input in the order of the input keys. Vectors,
/// colors and transforms are arrays of numbers, bytes are {"base64": "…"}.
std::string describeFilter(const CIFilter&);
