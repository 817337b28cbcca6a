#include "platform/foundation/UndoManager.h"

#include <utility>

UndoManager::UndoManager(QObject* parent)
    : QObject(parent)
{
}

void UndoManager::registerUndoWithTarget(const void* target, Invocation invocation)
{
    if (m_disabled > 0)
        return;
    Action action{target, std::move(invocation)};
    if (m_state != State::Collecting) {
        m_open.actions.push_back(std::move(action));
        return;
    }
    m_redo.clear();
    if (m_groupingLevel > 0)
        m_open.actions.push_back(std::move(action));
    else
        pushUndo({{std::move(action)}, {}});
    emit stateChanged();
}

void UndoManager::pushUndo(Step step)
{
    m_undo.push_back(std::move(step));
    if (m_levels > 0 && m_undo.size() > m_levels)
        m_undo.erase(m_undo.begin(), m_undo.end() - std::ptrdiff_t(m_levels));
}

void UndoManager::setActionName(const QString& name)
{
    if (m_disabled > 0)
        return;
    if (m_state != State::Collecting || m_groupingLevel > 0)
        m_open.name = name;
    else if (!m_undo.empty())
        m_undo.back().name = name;
    else
        return;
    emit stateChanged();
}

QString UndoManager::undoActionName() const
{
    if (m_state == State::Collecting && !m_open.actions.empty())
        return m_open.name;
    return m_undo.empty() ? QString() : m_undo.back().name;
}

QString UndoManager::redoActionName() const { return m_redo.empty() ? QString() : m_redo.back().name; }

QStringList UndoManager::namesOf(const Stack& steps)
{
    QStringList names;
    for (auto step = steps.rbegin(); step != steps.rend(); ++step)
        names << step->name;
    return names;
}

QStringList UndoManager::undoActionNames() const
{
    QStringList names = namesOf(m_undo);
    if (m_state == State::Collecting && !m_open.actions.empty())
        names.prepend(m_open.name);
    return names;
}

QStringList UndoManager::redoActionNames() const { return namesOf(m_redo); }

QString UndoManager::undoMenuItemTitle() const
{
    const QString name = undoActionName();
    return name.isEmpty() ? tr("Undo") : tr("Undo %1", "%1 is what is undone").arg(name);
}

QString UndoManager::redoMenuItemTitle() const
{
    const QString name = redoActionName();
    return name.isEmpty() ? tr("Redo") : tr("Redo %1", "%1 is what is redone").arg(name);
}

bool UndoManager::canUndo() const
{
    return !m_undo.empty() || (m_state == State::Collecting && !m_open.actions.empty());
}

void UndoManager::undo()
{
    if (m_state != State::Collecting)
        return;
    while (m_groupingLevel > 0)
        endUndoGrouping();
    run(m_undo, State::Undoing);
}

void UndoManager::redo()
{
    if (m_state == State::Collecting && m_groupingLevel == 0)
        run(m_redo, State::Redoing);
}

void UndoManager::run(Stack& from, State state)
{
    if (from.empty())
        return;
    // Off the stack first: what it runs may remove actions of its own target.
    Step step = std::move(from.back());
    from.pop_back();
    m_open = {};
    m_state = state;
    for (auto action = step.actions.rbegin(); action != step.actions.rend(); ++action)
        action->invocation();
    m_ranName = step.name;
    if (!m_isKeptOpen)
        finishStep();
}

void UndoManager::closeStep()
{
    if (std::exchange(m_isKeptOpen, false))
        finishStep();
}

void UndoManager::finishStep()
{
    Stack& to = m_state == State::Undoing ? m_redo : m_undo;
    m_state = State::Collecting;
    Step recorded = std::exchange(m_open, {});
    m_groupingLevel = 0;
    if (!recorded.actions.empty()) {
        if (recorded.name.isEmpty())
            recorded.name = m_ranName;
        to.push_back(std::move(recorded));
    }
    emit stateChanged();
}

void UndoManager::beginUndoGrouping() { ++m_groupingLevel; }

void UndoManager::endUndoGrouping()
{
    if (m_groupingLevel == 0 || --m_groupingLevel > 0 || m_state != State::Collecting)
        return;
    Step group = std::exchange(m_open, {});
    if (!group.actions.empty())
        pushUndo(std::move(group));
    emit stateChanged();
}

void UndoManager::removeAllActions()
{
    m_undo.clear();
    m_redo.clear();
    m_open = {};
    emit stateChanged();
}

void UndoManager::removeAllActionsWithTarget(const void* target)
{
    const auto drop = [target](Step& step) {
        std::erase_if(step.actions, [target](const Action& action) { return action.target == target; });
        return step.actions.empty();
    };
    std::erase_if(m_undo, drop);
    std::erase_if(m_redo, drop);
    drop(m_open);
    emit stateChanged();
}

void UndoManager::setLevelsOfUndo(std::size_t levels)
{
    m_levels = levels;
    if (m_levels > 0 && m_undo.size() > m_levels)
        m_undo.erase(m_undo.begin(), m_undo.end() - std::ptrdiff_t(m_levels));
    emit stateChanged();
}
