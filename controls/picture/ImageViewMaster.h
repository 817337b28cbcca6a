// What the picture view needs from the controller.
#pragma once

#include "platform/coreimage/CIFilter.h"
#include "platform/coreimage/CIImage.h"

#include <memory>
#include <string>

class QMenu;
class QString;

/// In tests, a ten-line fake. Everything is called on the main thread.
class ImageViewMaster {
public:
    virtual ~ImageViewMaster() = default;

    /// The source picture, for its size; null when none is open.
    virtual CIImage backImage() = 0;
    /// What the result is compared with; it has the place of the source picture.
    virtual CIImage comparedImage() { return backImage(); }
    /// The picture to show, null to show nothing; with `overBlack`, laid over opaque black.
    virtual CIImage coreImageResult(bool overBlack) = 0;
    /// The filter being edited, or null.
    virtual std::shared_ptr<CIFilter> getCurrentFilter() = 0;
    /// True when the current filter has inputs that are edited on the picture.
    virtual bool isControlsPresent() = 0;
    /// Sets an input, undoably.
    virtual void setFilterValueForKey(CIFilter& filter, const CIValue& value, const std::string& key) = 0;
    /// Names the newest undo step after the filter and the input.
    virtual void setActionNameForFilterKey(const CIFilter& filter, const std::string& key) = 0;
    /// What is set from here to `endChange` is one step of undo: all of a drag.
    virtual void beginChange() = 0;
    virtual void endChange() = 0;
    /// The menu for a right click on the picture; null for none. The master keeps it.
    virtual QMenu* contextMenu() = 0;
    /// Adds to the zoom, as a pinch does. (The double m is on purpose.)
    virtual void updateZoommWithDelta(double delta) = 0;
    /// Tells the zoom control what the view's zoom is now; doesn't come back to the view.
    virtual void setZoom(float zoom) = 0;
    /// Makes it the current file, and what can be read of it the picture, undoably. May take effect later.
    virtual void takeDroppedFile(const QString& path) = 0;
};
