#include "widgets/PictureLayout.h"

#include <algorithm>

CIRect pictureBounds(CIPoint pictureSize, CIPoint visibleSize, double zoom)
{
    const double mx = std::max(0.0, (visibleSize.x - pictureSize.x * zoom) / (2 * zoom));
    const double my = std::max(0.0, (visibleSize.y - pictureSize.y * zoom) / (2 * zoom));
    return {-mx, -my, std::max(pictureSize.x + 2 * mx, visibleSize.x / zoom),
        std::max(pictureSize.y + 2 * my, visibleSize.y / zoom)};
}

namespace {

/// What comes to the center of the visible part, measured from the lower left corner of the bounds.
CIPoint newCenter(const PictureLayoutRequest& r)
{
    const double before = r.previousZoom;
    CIPoint center{r.clip.x / before + r.clip.width / before * 0.5, r.clip.y / before + r.clip.height / before * 0.5};
    if (!r.mouse)
        return center;
    if (r.center == PictureCenter::Mouse)
        return *r.mouse;
    if (r.center == PictureCenter::Toward) {
        // The difference of the zooms, not their ratio: large steps at a high zoom go beyond the mouse.
        const double pull = double(r.zoom) - before;
        center.x -= pull * (center.x - r.mouse->x);
        center.y -= pull * (center.y - r.mouse->y);
    }
    return center;
}

} // namespace

PictureLayout layOutPicture(const PictureLayoutRequest& r)
{
    const double zoom = r.zoom;
    const CIRect bounds = pictureBounds(r.pictureSize, {r.clip.width, r.clip.height}, zoom);
    PictureLayout layout{bounds, {bounds.width * zoom, bounds.height * zoom}, {}, false};
    layout.unchanged = !r.force && bounds == r.oldBounds && r.zoom == r.previousZoom;
    if (!layout.unchanged && r.center != PictureCenter::None && r.zoom != r.previousZoom) {
        const CIPoint center = newCenter(r);
        layout.scrollTo = CIPoint{std::min(bounds.x, 0.0) + center.x - r.clip.width * 0.5 / zoom,
            std::min(bounds.y, 0.0) + center.y - r.clip.height * 0.5 / zoom};
    }
    return layout;
}

CIPoint clampedScrollPosition(CIPoint wanted, CIPoint frameSize, CIPoint visibleSize)
{
    return {std::clamp(wanted.x, 0.0, std::max(0.0, frameSize.x - visibleSize.x)),
        std::clamp(wanted.y, 0.0, std::max(0.0, frameSize.y - visibleSize.y))};
}
