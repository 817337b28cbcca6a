#pragma once

#include "tools/make_pictures/landscape/Vec.h"

/// A camera that looks along z with an upright picture plane, so that trees stay upright.
struct View {
    float focal; // pixels
    float middle, horizon; // pixels from the left and the top
    float eye; // metres above the lake; negative for what the lake mirrors

    float right(float x) const { return (x - middle) / focal; }
    float up(float y) const { return (horizon - y) / focal; }
    float pixelX(float x, float z) const { return middle + focal * x / z; }
    float pixelY(float height, float z) const { return horizon - focal * (height - eye) / z; }
};

constexpr Vec kSunlight = {4.6f, 2.55f, 1.18f};
constexpr Vec kSkylight = {0.36f, 0.46f, 0.80f};
