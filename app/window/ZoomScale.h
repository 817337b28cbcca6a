// Where a zoom lies on the zoom slider.
#pragma once

#include <algorithm>
#include <cmath>

inline constexpr float kZoomSliderEnd = 10; // the slider goes from 0 to this

/// Two straight pieces that meet at a position of 5 and actual size: 0 is a zoom of 0.1, 10 is one of 10.
inline float zoomOfSliderPosition(float position)
{
    return position < 5 ? float(double(position) * 0.9 / 5 + 0.1) : (position - 5) * 9 / 5 + 1;
}

/// The way back. Zooms beyond the slider's ends give positions beyond them.
inline float sliderPositionOfZoom(float zoom)
{
    return zoom < 1 ? float((double(zoom) - 0.1) * 5 / 0.9) : (zoom - 1) * 5 / 9 + 5;
}

/// The zoom at which a picture of `width` by `height` pixels just fits into an area of points.
inline float zoomThatFits(double width, double height, double areaWidth, double areaHeight)
{
    const double across = width / areaWidth, down = height / areaHeight;
    return float(1 / (std::isnan(across) ? down : std::max(across, down)));
}
