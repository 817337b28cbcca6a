#pragma once

#include "tools/make_pictures/Raster.h"

/// The start picture: a mountain lake on an autumn evening, seen from a meadow. sRGB, 2000 x 1500 times `scale`.
/// Takes a minute or two on two cores at scale 1.
Raster landscape(float scale);
