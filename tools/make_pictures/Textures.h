#pragma once

#include "tools/make_pictures/Raster.h"

/// Soft rounded bumps that tile without a seam; one band, 512 x 512, mean linear light 0.5:
/// what bends a picture by the texture's difference from the middle leaves it where it is.
Raster smoothTexture();

/// A glossy grey ball that touches all four edges: what a surface shows whose normal points there. 512 x 512, RGB.
Raster lightBall();

/// A clear picture with a soft bright highlight and a faint grey body; 256 x 256, RGB and alpha.
Raster restrictedShine();

/// From dark to bright by way of violet, magenta and orange, of evenly rising lightness; 256 x 16, RGB.
Raster colorMap();

/// Clouds in which every linear grey value is as frequent as any other, so that what is
/// revealed by a rising threshold grows evenly. One band, 1000 x 750.
Raster disintegrateMask();

/// The mark of filters with points to drag: a ring with four ticks, 16 x 16, RGB and alpha.
Raster controlPointMarker();
