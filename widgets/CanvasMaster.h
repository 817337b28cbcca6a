// What a view of the picture needs from the controller.
#pragma once

#include "platform/coreimage/CIImage.h"

class QMenu;
class QString;

/// In tests, a ten-line fake. Everything is called on the main thread.
class CanvasMaster {
public:
    virtual ~CanvasMaster() = default;

    /// The source picture; null when none is open.
    virtual CIImage backImage() = 0;
    /// The menu for a right click on the picture; null for none. The master keeps it.
    virtual QMenu* contextMenu() = 0;
    /// Adds to the zoom, as a pinch does. (The double m is on purpose.)
    virtual void updateZoommWithDelta(double delta) = 0;
    /// Tells the zoom control what the view's zoom is now; doesn't come back to the view.
    virtual void setZoom(float zoom) = 0;
    /// Makes it the current file, and what can be read of it the picture, undoably. May take effect later.
    virtual void takeDroppedFile(const QString& path) = 0;
    /// Of a file that is dropped with Alt held.
    virtual void takeSecondPicture(const QString&) { }
};
