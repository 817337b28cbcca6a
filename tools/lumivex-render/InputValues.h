// Text from the command line as values of filter inputs.
#pragma once

#include "platform/coreimage/CIFilter.h"

#include <string>

/// The value that `text` stands for at an input of that class. Throws UsageError when it stands for none.
CIValue inputValue(const CIInputAttributes& input, const std::string& text);
