// The steps of undo and redo as lines of a menu.
#pragma once

#include <QStringList>

#include <vector>

/// A state that the user can go back or forward to, named after the step that led to it.
struct UndoHistoryLine {
    QString name; // empty for a step without a name
    int steps = 1; // of that name in a row, as a drag leaves them; 0 before all steps
    int moves = 0; // to get there: redos, or undos when negative; 0 for the present state

    bool operator==(const UndoHistoryLine&) const = default;
};

/// Newest first, at most `most` lines around the present state. Names begin with the step that is undone or redone
/// next.
std::vector<UndoHistoryLine> undoHistoryLines(const QStringList& undoNames, const QStringList& redoNames, int most);
