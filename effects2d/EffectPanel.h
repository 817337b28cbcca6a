// The controls of an effect, stacked.
#pragma once

#include "effects2d/EffectControl.h"

#include <functional>

class QGridLayout;

/// Stacks rows of a caption and a control. One layout for all effects, like that of a filter's panel.
class EffectPanel : public QWidget {
    Q_OBJECT
public:
    using Action = std::function<void(EffectControl* sender)>; // called when the user has changed the value

    struct Text {
        QString label; // the caption, also what assistive technology reads
        QString toolTip;
    };
    struct Range {
        double min = 0, max = 1;
        int decimals = 0; // of the readout, and of the steps
        bool continuous = true; // acts while it is moved, not only when it is let go
    };

    explicit EffectPanel(QWidget* parent);
    /// A new panel as the only thing in `view`.
    static EffectPanel& placedIn(QWidget& view);

    EffectControl* addPopUp(const Text& text, const QStringList& titles, int index, Action action);
    EffectControl* addColorWell(const Text& text, const CIColor& color, Action action);
    /// On the row of another control, after it. The label is for assistive technology only.
    EffectControl* addColorWellBeside(EffectControl& neighbor, const Text& text, const CIColor& color, Action action);
    EffectControl* addCheckBox(const Text& text, bool on, Action action);
    EffectControl* addSlider(const Text& text, const Range& range, double value, Action action);
    /// 96 x 24 points, in the middle, without a caption.
    EffectControl* addPushButton(const Text& text, Action action);

private:
    EffectControl* addRow(const Text& text, EffectControl* control, const CIValue& value, Action action);

    QGridLayout* m_rows;
};
