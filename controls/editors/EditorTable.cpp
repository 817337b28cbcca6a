#include "controls/editors/EditorTable.h"

#include "controls/editors/CubeEditor.h"
#include "controls/editors/CurveEditor.h"
#include "controls/editors/KernelEditor.h"
#include "controls/editors/WhiteEditor.h"

#include <QCoreApplication>

namespace {

template <Role role>
bool hasRole(const CIFilter&, const CIInputAttributes& input)
{
    return input.role == role;
}

/// For an editor of all inputs of that role.
template <Role role>
bool isLastOf(const CIFilter& filter, const CIInputAttributes& input)
{
    return input.role == role && keysOf(filter, role).back() == input.key;
}

template <class Editor>
InputEditor* made(const EditedInput& input, QWidget* parent)
{
    return new Editor(input, parent);
}

// The first line that is for an input counts.
const EditorEntry kEditors[] = {
    {hasRole<Role::Weights>, QT_TRANSLATE_NOOP("EditorTable", "Edit as a grid"), made<KernelEditor>},
    {isLastOf<Role::TonePoint>, QT_TRANSLATE_NOOP("EditorTable", "Edit as a curve"), made<ToneCurveEditor>},
    {isLastOf<Role::Polynomial>, QT_TRANSLATE_NOOP("EditorTable", "Edit as curves"), made<PolynomialEditor>},
    {hasRole<Role::ToneTable>, QT_TRANSLATE_NOOP("EditorTable", "Edit as curves"), made<ToneTableEditor>},
    {hasRole<Role::Cube>, QT_TRANSLATE_NOOP("EditorTable", "Looks and .cube files"), made<CubeEditor>},
    {isLastOf<Role::White>, QT_TRANSLATE_NOOP("EditorTable", "White balance"), made<WhiteEditor>},
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
