#pragma once

#include "tools/make_pictures/landscape/Canvas.h"

/// Light that a plant stands in.
struct PlantLight {
    Vec sun, sky; // already weakened by shadow
    Vec haze; // color of the air before it
    float hazy; // how much of that air, 0...1
};

struct Conifer {
    float x, y, height; // foot and height in pixels
    float away; // metres
    std::uint32_t seed;
    bool golden; // a larch in autumn
};
/// Draws the tree lit from the left; the more pixels it has, the finer its twigs.
void drawConifer(Canvas& canvas, const Strip& strip, const Conifer& tree, const PlantLight& light);

struct Blade {
    float x, y, height, lean, radius; // pixels; lean is how far the tip hangs to the side
    float away;
};
/// One bent blade of grass, dark at the foot.
void drawBlade(Canvas& canvas, const Strip& strip, const Blade& blade, const Vec& foot, const Vec& tip);

enum class Flower { Lupine, Daisy, Poppy, Buttercup, SeedGrass };
/// `size` is the pixels of a metre there.
void drawFlower(Canvas& canvas, const Strip& strip, Flower flower, const Blade& stem, float size, Random& random);
