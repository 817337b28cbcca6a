// Changes of inputs that can be undone.
#pragma once

#include "platform/coreimage/CIFilter.h"

#include <QString>

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

class UndoManager;

/// Sets inputs and registers the way back. Steps keep their filter alive, also when it is no longer shown.
class ParameterChanges {
public:
    explicit ParameterChanges(UndoManager& undoManager)
        : m_undoManager(undoManager)
    {
    }

    /// From now on, changes of the filter can be undone.
    void add(const std::shared_ptr<CIFilter>& filter);
    /// Nothing for a filter that was not added.
    void setFilterValueForKey(CIFilter& filter, const CIValue& value, const std::string& key);
    void setDictValueForKey(
        const std::shared_ptr<CIDictionary>& dictionary, const CIValue& value, const std::string& key);
    void setActionNameForFilterKey(const CIFilter& filter, const std::string& key);
    /// Sets all inputs for which there is a value as one step; none when no value is another.
    using ValueFor = std::function<std::optional<CIValue>(const CIInputAttributes&)>;
    void setAllInputs(CIFilter& filter, const QString& actionName, const ValueFor& valueFor);
    /// The other filter's notes become the filter's.
    void setNotes(CIFilter& filter, const CIFilter& from);

    /// Filters that only steps keep will never draw again, and must not hold on to pictures. `current` does draw.
    void dropImagesOfPastFilters(const CIFilter* current);

private:
    void setValue(const std::shared_ptr<CIFilter>& filter, const CIValue& value, const std::string& key);

    UndoManager& m_undoManager;
    std::vector<std::weak_ptr<CIFilter>> m_filters; // all that steps may still need
};
