// A transform as people set it: pure arithmetic.
#pragma once

#include "platform/coreimage/CIGeometry.h"

/// A stretch and a shear along x, then a uniform scale and a clockwise turn.
struct TransformParts {
    float scale = 1;
    float angle = 0; // radians, from 0 up to a full turn
    float stretch = 1;
    float skew = 0;

    bool operator==(const TransformParts&) const = default;
};

/// Translation is left out. Of a transform that flattens the plane, what can't be told stays as in the identity.
TransformParts transformParts(const CIAffineTransform& transform);

/// Neither scale nor stretch need be positive.
CIAffineTransform composedTransform(const TransformParts& parts, CIPoint translation);
