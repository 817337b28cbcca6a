// What the rows of the panel need from the controller.
#pragma once

#include "platform/coreimage/CIFilter.h"
#include "platform/coreimage/CIImage.h"

#include <memory>
#include <optional>
#include <string>

#include <QStringList>

/// In tests, a small fake. Everything is called on the main thread.
class ParameterMaster {
public:
    virtual ~ParameterMaster() = default;

    /// Sets an input, undoably. Nothing empties it.
    virtual void setFilterValueForKey(CIFilter& filter, const CIValue& value, const std::string& key) = 0;
    /// Names the newest undo step after the filter and the input.
    virtual void setActionNameForFilterKey(const CIFilter& filter, const std::string& key) = 0;
    /// The same as for a filter, for a dictionary of settings; the step gets no name.
    virtual void setDictValueForKey(
        const std::shared_ptr<CIDictionary>& dictionary, const CIValue& value, const std::string& key) = 0;
    /// Shows what the changed filter makes of the picture.
    virtual void updateView() = 0;

    /// What is set from here to `endChange` is one step of undo: all of a drag.
    virtual void beginChange() = 0;
    virtual void endChange() = 0;

    /// What the input holds when such a filter is newly chosen; nothing for an unknown key.
    virtual CIValue standardValueForKey(const CIFilter& filter, const std::string& key) = 0;

    /// Reads a picture file beside the living window. Null when it is no readable picture, nothing at all when the user
    /// stopped it.
    virtual std::optional<CIImage> readImage(const QString& path) = 0;
    /// Tells the user that the file could not be read, without asking for an answer.
    virtual void showReadFailure(const QString& path) = 0;
    /// For open panels: "Pictures (*.png …)" and the like.
    virtual QStringList pictureNameFilters() = 0;
};
