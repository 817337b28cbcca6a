#pragma once

#include "tools/make_pictures/Raster.h"

#include <string>
#include <vector>

/// A picture that a control of the window is drawn with, made from what is sharp at any size.
struct ControlPicture {
    std::string name; // without extension
    Raster (*draw)(int scale); // pixels per point; sRGB and straight alpha
};

/// Buttons of the favourites strip and the parts of the scroller. Greys are translucent, so that one set does for the
/// light look and for the dark one.
const std::vector<ControlPicture>& controlPictures();
