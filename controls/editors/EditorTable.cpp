#include "controls/editors/EditorTable.h"

#include "controls/editors/KernelEditor.h"

#include <QCoreApplication>

namespace {

template <Role role>
bool hasRole(const CIFilter&, const CIInputAttributes& input)
{
    return input.role == role;
}

template <class Editor>
InputEditor* made(const EditedInput& input, QWidget* parent)
{
    return new Editor(input, parent);
}

// The first line that is for an input counts.
const EditorEntry kEditors[] = {
    {hasRole<Role::Weights>, QT_TRANSLATE_NOOP("EditorTable", "Edit as a grid"), made<KernelEditor>},
};

} // namespace

QString EditorEntry::shownTitle() const { return QCoreApplication::translate("EditorTable", title); }

const EditorEntry* editorFor(const CIFilter& filter, const CIInputAttributes& input)
{
    for (const EditorEntry& entry : kEditors)
        if (entry.isFor(filter, input))
            return &entry;
    return nullptr;
}
