#include "controls/editors/InputEditor.h"

#include "controls/panel/InputBinding.h"

#include <utility>

#include <QPointer>

std::vector<std::string> keysOf(const CIFilter& filter, Role role)
{
    std::vector<std::string> keys;
    for (const std::string& key : filter.inputKeys())
        if (filter.attributesForKey(key)->role == role)
            keys.push_back(key);
    return keys;
}

ValueBinding InputEditor::binding(const std::string& key)
{
    ValueBinding value = inputBinding(m_input.filter, key, m_input.master);
    value.set = [set = value.set, editor = QPointer<InputEditor>(this)](const CIValue& changed) {
        set(changed);
        if (editor)
            emit editor->edited();
    };
    return value;
}

void InputEditor::beginChange()
{
    if (!std::exchange(m_changing, true))
        m_input.master.beginChange();
}

void InputEditor::endChange()
{
    if (std::exchange(m_changing, false))
        m_input.master.endChange();
}
