// Where the picture lies in its scroll view: pure arithmetic.
//
// View coordinates are picture pixels, y up. The frame of the view is its bounds times the zoom, in points; the
// scroll position is the lower left corner of the visible part, in points from the lower left corner of the frame.
#pragma once

#include "platform/coreimage/CIGeometry.h"

#include <optional>

/// How a new layout chooses what is seen. The numbers are those that `resizeViewBound:center:` is called with.
enum class PictureCenter {
    None = 0, // scroll position stays
    Visible = 1, // center of what was visible
    Mouse = 2, // mouse position
    Toward = 3, // center of what was visible, pulled toward the mouse
};

struct PictureLayout {
    CIRect bounds; // view coordinates
    CIPoint frameSize; // points
    std::optional<CIPoint> scrollTo; // view coordinates that come to the lower left corner, if the view is to scroll
    bool unchanged = false; // bounds and zoom are as before and nothing needs to be done
};

/// The view's bounds for a picture of `pictureSize` (0 x 0 for none) in a visible part of `visibleSize` points: a
/// smaller picture sits centered between margins, and bounds are never smaller than the visible part.
CIRect pictureBounds(CIPoint pictureSize, CIPoint visibleSize, double zoom);

struct PictureLayoutRequest {
    CIRect clip; // scroll position and visible size, points
    CIPoint pictureSize; // picture pixels
    CIRect oldBounds; // view coordinates
    float zoom = 1;
    float previousZoom = 1;
    std::optional<CIPoint> mouse; // view coordinates before the change; nothing when no mouse asked for it
    bool force = true;
    PictureCenter center = PictureCenter::Toward;
};

PictureLayout layOutPicture(const PictureLayoutRequest&);

/// The scroll position nearest to `wanted` at which the visible part lies within the frame. Points.
CIPoint clampedScrollPosition(CIPoint wanted, CIPoint frameSize, CIPoint visibleSize);
