// Pictures that take long to draw.
#pragma once

#include "platform/coreimage/CIContext.h"

#include <functional>

/// Draws on any thread; null when it is stopped.
using LaterPicture = std::function<CIImage(CIRenderControl*)>;
/// What the user sees, at full size; empty when there is nothing.
using FinishedPicture = std::function<LaterPicture()>;
