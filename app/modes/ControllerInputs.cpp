// All inputs of the filter at once.
#include "app/Controller.h"
#include "app/modes/InputValues.h"

#include <QRandomGenerator>

#include <algorithm>

void Controller::resetAllInputs()
{
    const std::shared_ptr<CIFilter> fresh =
        filerMode() == Standard && currentFilter ? newFilter(currentFilter->name()) : nullptr;
    if (fresh)
        setAllInputs(tr("Reset All Inputs"),
            [&](const CIInputAttributes& input) { return std::optional(fresh->valueForKey(input.key)); });
}

void Controller::randomizeInputs()
{
    if (filerMode() != Standard || !currentFilter)
        return;
    std::mt19937 random(QRandomGenerator::global()->generate());
    setAllInputs(tr("Randomize Inputs"), [&](const CIInputAttributes& input) {
        return randomValue(input, currentFilter->valueForKey(input.key), getBgImageExtent(), random);
    });
}

/// As one step of undo; none when no value is another.
void Controller::setAllInputs(
    const QString& actionName, const std::function<std::optional<CIValue>(const CIInputAttributes&)>& valueFor)
{
    m_undoManager.beginUndoGrouping();
    for (const std::string& key : currentFilter->inputKeys()) {
        const CIInputAttributes* input = currentFilter->attributesForKey(key);
        if (!input || !isUsersInput(*currentFilter, *input))
            continue;
        const std::optional<CIValue> value = valueFor(*input);
        if (value && *value != currentFilter->valueForKey(key))
            setFilterValueForKey(*currentFilter, *value, key);
    }
    m_undoManager.setActionName(actionName);
    m_undoManager.endUndoGrouping();
    updateView();
    updateLayout();
}

/// Whether the current filter has inputs that the operations above would set.
bool Controller::hasInputsToSet(bool randomly) const
{
    if (filerMode() != Standard || !currentFilter)
        return false;
    const std::vector<std::string> keys = currentFilter->inputKeys();
    return std::any_of(keys.begin(), keys.end(), [&](const std::string& key) {
        const CIInputAttributes* input = currentFilter->attributesForKey(key);
        return input && isUsersInput(*currentFilter, *input) && (!randomly || canBeRandom(*input));
    });
}
