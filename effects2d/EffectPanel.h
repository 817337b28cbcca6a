// The controls of an effect, stacked.
#pragma once

#include "effects2d/EffectControl.h"

class QGridLayout;

/// Stacks rows of a caption and a control. One layout for all effects, like that of a filter's panel.
class EffectPanel : public QWidget {
    Q_OBJECT
public:
    explicit EffectPanel(QWidget* parent);
    /// A new panel as the only thing in `view`.
    static EffectPanel& placedIn(QWidget& view);

    /// A control that shows what belongs to that value, and what is called when the user changes it.
    void addParameter(
        const EffectParameter& parameter, const CIValue& value, std::function<void(EffectControl* sender)> action);
    /// 96 x 24 points, in the middle, without a caption.
    void addPushButton(const QString& title, const QString& toolTip, std::function<void()> action);
    /// What taking a change back is called.
    static QString undoName(const ParameterText& text);

private:
    QGridLayout* m_rows;
    EffectControl* m_last = nullptr; // on a row of its own
};
