// Which white a color is.
#pragma once

#include "platform/coreimage/CIGeometry.h"

#include <array>

/// The "inputNeutral" (temperature in kelvin, tint) with which CITemperatureAndTint, its "inputTargetNeutral" being
/// `target`, makes a color grey. `color` is linear sRGB. As near as the filter's range comes, and `target` for black.
CIPoint CINeutralForColor(const std::array<double, 3>& color, CIPoint target);
