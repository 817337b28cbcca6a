// Has libraries load what they load late.
#pragma once

#include "platform/imageio/PictureInput.h"

#include <functional>

namespace imageio {

/// All of them, unless `isHurried` says that there is no time for it. Starts no thread.
void warmUp(const std::function<bool()>& isHurried);

/// At least those that read such files.
void warmUpFor(const FileFormat&);

} // namespace imageio
