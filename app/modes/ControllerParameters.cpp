#include "app/Controller.h"
#include "app/document/UndoNames.h"

/// The owner of a filter that was made here; null for others.
std::shared_ptr<CIFilter> Controller::sharedFilter(const CIFilter& filter)
{
    for (const std::weak_ptr<CIFilter>& made : m_madeFilters)
        if (std::shared_ptr<CIFilter> shared = made.lock(); shared.get() == &filter)
            return shared;
    return nullptr;
}

void Controller::setFilterValueForKey(CIFilter& filter, const CIValue& value, const std::string& key)
{
    if (const std::shared_ptr<CIFilter> shared = sharedFilter(filter))
        setSharedFilterValueForKey(shared, value, key);
}

void Controller::setSharedFilterValueForKey(
    const std::shared_ptr<CIFilter>& filter, const CIValue& value, const std::string& key)
{
    const CIValue old = filter->valueForKey(key);
    filter->setValueForKey(value, key);
    m_undoManager.registerUndoWithTarget(
        this, [this, filter, old, key] { setSharedFilterValueForKey(filter, old, key); });
}

void Controller::setDictValueForKey(
    const std::shared_ptr<CIDictionary>& dictionary, const CIValue& value, const std::string& key)
{
    CIValue& place = (*dictionary)[key];
    const CIValue old = place;
    place = value;
    m_undoManager.registerUndoWithTarget(
        this, [this, dictionary, old, key] { setDictValueForKey(dictionary, old, key); });
}

void Controller::setActionNameForFilterKey(const CIFilter& filter, const std::string& key)
{
    m_undoManager.setActionName(actionNameForFilterKey(filter, QString::fromStdString(key)));
}

void Controller::undo()
{
    if (isOpening())
        return;
    m_undoManager.undo();
    updateView();
    updateLayout();
}

void Controller::redo()
{
    if (isOpening())
        return;
    m_undoManager.redo();
    updateView();
    updateLayout();
}

CIValue Controller::standardValueForKey(const CIFilter& filter, const std::string& key)
{
    const std::shared_ptr<CIFilter> fresh = newFilter(filter.name());
    return fresh ? fresh->valueForKey(key) : CIValue();
}
