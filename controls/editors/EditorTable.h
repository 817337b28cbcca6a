// Which inputs have an editor beside their row.
#pragma once

#include "controls/editors/InputEditor.h"

#include <QString>

/// One line of the table, which is in EditorTable.cpp: a new editor is a line there.
struct EditorEntry {
    /// True for the input below which the editor stands. An editor of several inputs stands below the last of them.
    bool (*isFor)(const CIFilter& filter, const CIInputAttributes& input);
    /// Beside the fold's arrow; in English, context "EditorTable".
    const char* title;
    InputEditor* (*make)(const EditedInput& input, QWidget* parent);

    QString shownTitle() const;
};

/// Null for an input without one.
const EditorEntry* editorFor(const CIFilter& filter, const CIInputAttributes& input);
