#include "widgets/ZoomSteps.h"

float clampedZoom(float zoom)
{
    if (!(zoom > kSmallestZoom))
        return float(kSmallestZoom);
    return zoom < kLargestZoom ? zoom : float(kLargestZoom);
}

float zoomAfterWheelStep(float zoom, double delta)
{
    if (delta < 0 && zoom < float(kSmallestZoom))
        return zoom; // only the whole picture in the window is smaller
    const double before = zoom; // steps are decided in double: a stored 1.1 lies just above 1.1
    double after = before;
    if (delta > 0)
        after += before > 1.0 ? 0.2 * before : 0.05;
    else if (delta < 0)
        after -= before > 1.1 ? 0.2 * before : 0.05;
    return clampedZoom(float(after));
}
