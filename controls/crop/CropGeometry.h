// What is cut out of a picture: pure parts.
#pragma once

#include "platform/coreimage/CIGeometry.h"

// Sizes and rectangles are picture pixels, y up, with the picture's lower left corner at the origin. Proportions are
// width to height; 0 leaves them free. All rectangles are of whole pixels, inside the picture, and have at least one.

/// In the middle of the picture.
CIRect largestCrop(CIPoint picture, double proportions);
/// Between the corner that stays and the one that is dragged, which may lie outside of the picture.
CIRect cropBetween(CIPoint fixed, CIPoint dragged, double proportions, CIPoint picture);
/// With an edge dragged: the left one with -1 for `side`, the right one with 1, the lower or upper one likewise with
/// `end`, the other number being 0. The edge across from it stays; fixed proportions grow and shrink both others.
CIRect cropToEdge(const CIRect& crop, int side, int end, CIPoint by, double proportions, CIPoint picture);
/// As far as the picture reaches.
CIRect movedCrop(const CIRect& crop, CIPoint by, CIPoint picture);
/// Of that size, or as much of it as there is, with the same middle if the picture reaches so far. With proportions the
/// height follows the width.
CIRect sizedCrop(const CIRect& crop, CIPoint size, double proportions, CIPoint picture);

/// What a picture measures that was turned about its middle, by radians: with `fills` the largest rectangle of the
/// picture's own proportions without empty corners, else the smallest that holds all of it. Whole pixels.
CIPoint straightenedSize(CIPoint picture, double angle, bool fills);
/// The turn that makes the line level or upright, whichever is nearer; in radians, from -π/4 to π/4. 0 for a point.
double levelingAngle(CIPoint from, CIPoint to);
