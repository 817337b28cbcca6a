// What the picture view needs from the controller.
#pragma once

#include "platform/coreimage/CIFilter.h"
#include "widgets/CanvasMaster.h"

#include <memory>
#include <string>

/// In tests, a ten-line fake. Everything is called on the main thread.
class ImageViewMaster : public CanvasMaster {
public:
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
};
