#include "app/Controller.h"
#include "app/MainWindow.h"
#include "app/UndoNames.h"
#include "controls/ControlPoints.h"
#include "ui_MainWindow.h"

#include <algorithm>

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
    m_undoManager.undo();
    updateView();
    updateLayout();
}

void Controller::redo()
{
    m_undoManager.redo();
    updateView();
    updateLayout();
}

void Controller::updateFilterControls(int)
{
    if (currentFilter)
        ui.filterNameField->setText(QString::fromStdString(currentFilter->displayName()));
    showFilterName(currentFilter != nullptr);
}

void Controller::clearControls()
{
    while (QWidget* row = placeCntrlView->findChild<QWidget*>({}, Qt::FindDirectChildrenOnly))
        delete row;
    showFilterName(false);
}

/// The name above the rows, or a hint where there is none.
void Controller::showFilterName(bool shown)
{
    ui.filterNameField->setVisible(shown);
    ui.filterNameLine->setVisible(shown);
    ui.filterHintField->setVisible(!shown && filerMode() == Standard);
}

bool Controller::isControlsPresent()
{
    if (!currentFilter)
        return false;
    const std::vector<std::string> keys = currentFilter->inputKeys();
    return std::any_of(keys.begin(), keys.end(), [this](const std::string& key) {
        const CIInputAttributes* input = currentFilter->attributesForKey(key);
        return input && hasControlPoint(*input);
    });
}
