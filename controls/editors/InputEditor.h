// What all editors of the panel have in common.
#pragma once

#include "controls/panel/ParameterMaster.h"
#include "widgets/rows/ValueBinding.h"

#include <QWidget>

/// What an editor is made for: an input of a filter. The master outlives the editor.
struct EditedInput {
    std::shared_ptr<CIFilter> filter;
    std::string key;
    ParameterMaster& master;

    const CIInputAttributes& attributes() const { return *filter->attributesForKey(key); }
};

/// The inputs of that role, in the filter's order.
std::vector<std::string> keysOf(const CIFilter& filter, Role role);

/// Edits an input, or several that belong together, in the fold under their rows. Its layout says how high it is in the
/// panel's width, which may be as little as 220 points. It stays as long as the fold is open, and is made anew when
/// values come from elsewhere, by undo for instance.
class InputEditor : public QWidget {
    Q_OBJECT
public:
    InputEditor(EditedInput input, QWidget* parent)
        : QWidget(parent)
        , m_input(std::move(input))
    {
    }
    ~InputEditor() override { endChange(); }

    /// Shows the filter's values again, for a row has set one.
    virtual void showValues() = 0;

signals:
    /// A value was set, and rows are to show it.
    void edited();

protected:
    /// Another input of the filter, or the editor's own; what is set through it is announced.
    ValueBinding binding(const std::string& key);
    CIValue value(const std::string& key) const { return m_input.filter->valueForKey(key); }
    void setValue(const std::string& key, const CIValue& value) { binding(key).set(value); }

    /// What is set in between, to whichever inputs, is one step of undo. Beginning twice, or ending what hasn't begun,
    /// does nothing.
    void beginChange();
    void endChange();

    const EditedInput m_input;

private:
    bool m_changing = false;
};
