// What the rows of the panel need from the controller.
#pragma once

#include "controls/rows/PictureSource.h"
#include "platform/coreimage/CIFilter.h"

#include <functional>
#include <memory>
#include <optional>
#include <string>

/// In tests, a small fake. Everything is called on the main thread.
class ParameterMaster : public PictureSource {
public:
    /// Sets an input, undoably. Nothing empties it.
    virtual void setFilterValueForKey(CIFilter& filter, const CIValue& value, const std::string& key) = 0;
    /// Names the newest undo step after the filter and the input.
    virtual void setActionNameForFilterKey(const CIFilter& filter, const std::string& key) = 0;
    /// The same as for a filter, for a dictionary of settings; the step gets no name.
    virtual void setDictValueForKey(
        const std::shared_ptr<CIDictionary>& dictionary, const CIValue& value, const std::string& key) = 0;
    /// The picture that the filter gets; null when there is none.
    virtual CIImage backImage() { return {}; }
    /// Shows what the changed filter makes of the picture.
    virtual void updateView() = 0;

    /// Asks the user to click on a place of the picture, and then calls `take` with it, or with nothing when the user
    /// goes elsewhere. Picture pixels, y up. A null `take` ends the asking.
    virtual void pickPlace(std::function<void(std::optional<CIPoint>)>) { }

    /// What is set from here to `endChange` is one step of undo: all of a drag.
    virtual void beginChange() = 0;
    virtual void endChange() = 0;

    /// What the input holds when such a filter is newly chosen; nothing for an unknown key.
    virtual CIValue standardValueForKey(const CIFilter& filter, const std::string& key) = 0;
    /// Of the source picture, px; empty without one.
    virtual CIRect getBgImageExtent() const { return {}; }
    /// How much longer than declared a slider may become, for the picture asks for larger numbers.
    virtual double sliderGrowthForKey(const CIFilter&, const std::string&) { return 1; }
};
