// Undo and redo of everything the user does in a window.
#pragma once

#include <QObject>
#include <QStringList>

#include <functional>
#include <vector>

/// Remembers how to take changes back. Before (or right after) a change, its inverse is registered as an invocation
/// together with the object it acts on. Undoing runs the inverse; what that registers meanwhile becomes the redo.
///
/// Every registration is one step of its own, unless it is made between `beginUndoGrouping` and `endUndoGrouping`.
class UndoManager : public QObject {
    Q_OBJECT

public:
    using Invocation = std::function<void()>;

    explicit UndoManager(QObject* parent = nullptr);

    /// `target` is never dereferenced: it only says which actions `removeAllActionsWithTarget` drops.
    /// A change made by the user (not by undo or redo) empties the redo stack.
    void registerUndoWithTarget(const void* target, Invocation invocation);

    /// Names the newest step, or, while undoing or redoing, the one being recorded. Nothing without such a step.
    /// A step recorded by undo or redo that gets no name keeps the name of the step that was run.
    void setActionName(const QString& name);
    /// Empty when there is nothing to undo or the step has no name.
    QString undoActionName() const;
    QString redoActionName() const;
    /// Of all steps, that which would be run next first.
    QStringList undoActionNames() const;
    QStringList redoActionNames() const;
    /// For menus: "Undo" followed by the action name.
    QString undoMenuItemTitle() const;
    QString redoMenuItemTitle() const;

    bool canUndo() const;
    bool canRedo() const { return !m_redo.empty(); }
    bool isUndoing() const { return m_state == State::Undoing; }

    /// Runs the newest step, its last registered action first. An open group is closed before. Nothing while an
    /// undo or redo is running.
    void undo();
    void redo();
    /// The running undo or redo goes on recording until `closeStep`: its change takes time. Nothing when none is
    /// running.
    void keepStepOpen() { m_isKeptOpen = m_state != State::Collecting; }
    void closeStep();

    /// Groups nest; the outermost pair makes one step. An empty group makes none.
    void beginUndoGrouping();
    void endUndoGrouping();

    /// While it is disabled, what is registered is forgotten: for changes that are only tried. Calls nest.
    void disableUndoRegistration() { ++m_disabled; }
    void enableUndoRegistration() { --m_disabled; }

    void removeAllActions();
    /// From both stacks; a step that loses its last action goes away.
    void removeAllActionsWithTarget(const void* target);

    /// How many steps are kept, the oldest go first; 0 (as at first) keeps all.
    void setLevelsOfUndo(std::size_t levels);
    std::size_t levelsOfUndo() const { return m_levels; }

signals:
    /// `canUndo`, `canRedo` or a name may have changed.
    void stateChanged();

private:
    struct Action {
        const void* target;
        Invocation invocation;
    };
    struct Step {
        std::vector<Action> actions;
        QString name;
    };
    using Stack = std::vector<Step>;
    enum class State { Collecting, Undoing, Redoing };

    static QStringList namesOf(const Stack& steps);
    void run(Stack& from, State state);
    void finishStep();
    void pushUndo(Step step);

    Stack m_undo, m_redo;
    Step m_open; // the open group, or what is recorded while undoing or redoing
    int m_groupingLevel = 0;
    int m_disabled = 0;
    State m_state = State::Collecting;
    bool m_isKeptOpen = false;
    QString m_ranName; // of the step that is being undone or redone
    std::size_t m_levels = 0;
};
