// One small sound file of each kind.
#pragma once

#include "tests/imageio/PictureFiles.h"

struct PictureSample {
    std::string name;
    Bytes bytes;
    bool mustBeWhole = true; // half of the file can never make a picture
};

std::vector<PictureSample> pictureSamples();
