#include "app/modes/ParameterChanges.h"

#include "app/document/UndoNames.h"
#include "app/modes/InputValues.h"
#include "platform/chain/Layers.h"
#include "platform/foundation/UndoManager.h"

void ParameterChanges::add(const std::shared_ptr<CIFilter>& filter)
{
    std::erase_if(m_filters, [](const std::weak_ptr<CIFilter>& made) { return made.expired(); });
    m_filters.push_back(filter);
}

void ParameterChanges::setFilterValueForKey(CIFilter& filter, const CIValue& value, const std::string& key)
{
    for (const std::weak_ptr<CIFilter>& added : m_filters)
        if (const std::shared_ptr<CIFilter> shared = added.lock(); shared.get() == &filter)
            return setValue(shared, value, key);
}

void ParameterChanges::setValue(const std::shared_ptr<CIFilter>& filter, const CIValue& value, const std::string& key)
{
    const CIValue old = filter->valueForKey(key);
    filter->setValueForKey(value, key);
    m_undoManager.registerUndoWithTarget(this, [this, filter, old, key] { setValue(filter, old, key); });
}

void ParameterChanges::setDictValueForKey(
    const std::shared_ptr<CIDictionary>& dictionary, const CIValue& value, const std::string& key)
{
    CIValue& place = (*dictionary)[key];
    const CIValue old = place;
    place = value;
    m_undoManager.registerUndoWithTarget(
        this, [this, dictionary, old, key] { setDictValueForKey(dictionary, old, key); });
}

void ParameterChanges::setActionNameForFilterKey(const CIFilter& filter, const std::string& key)
{
    m_undoManager.setActionName(actionNameForFilterKey(filter, QString::fromStdString(key)));
}

void ParameterChanges::setAllInputs(CIFilter& filter, const QString& actionName, const ValueFor& valueFor)
{
    m_undoManager.beginUndoGrouping();
    for (const CIInputAttributes* input : usersInputs(filter)) {
        const std::optional<CIValue> value = valueFor(*input);
        if (value && *value != filter.valueForKey(input->key))
            setFilterValueForKey(filter, *value, input->key);
    }
    m_undoManager.setActionName(actionName);
    m_undoManager.endUndoGrouping();
}

void ParameterChanges::setNotes(CIFilter& filter, const CIFilter& from)
{
    for (const CIFilter* notes : std::initializer_list<const CIFilter*>{&filter, &from})
        for (const std::string& key : noteKeys(*notes))
            if (const CIValue value = from.valueForKey(key); value != filter.valueForKey(key))
                setFilterValueForKey(filter, value, key);
}

void ParameterChanges::dropImagesOfPastFilters(const CIFilter* current)
{
    for (const std::weak_ptr<CIFilter>& added : m_filters)
        if (const std::shared_ptr<CIFilter> filter = added.lock(); filter && filter.get() != current)
            for (const std::string& key : filter->inputKeys())
                if (filter->valueForKey(key).isImage())
                    filter->setValueForKey({}, key);
}
