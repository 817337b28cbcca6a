// The zoom factors of the picture view. 1 is one picture pixel per point.
#pragma once

inline constexpr double kSmallestZoom = 0.1;
inline constexpr double kLargestZoom = 10.0;

/// Brings a zoom into the range; no number becomes the smallest.
float clampedZoom(float zoom);

/// The zoom after one wheel step: up for a positive `delta`, down for a negative one.
float zoomAfterWheelStep(float zoom, double delta);
