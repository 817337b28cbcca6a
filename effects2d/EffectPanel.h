// The controls of an effect, stacked.
#pragma once

#include "effects2d/EffectControl.h"
#include "effects2d/EffectParameter.h"

#include <functional>

class QGridLayout;

/// Stacks rows of a caption and a control. One layout for all effects, like that of a filter's panel.
class EffectPanel : public QWidget {
    Q_OBJECT
public:
    using Action = std::function<void(EffectControl* sender)>; // called when the user has changed the value

    explicit EffectPanel(QWidget* parent);
    /// A new panel as the only thing in `view`.
    static EffectPanel& placedIn(QWidget& view);

    /// A control that shows what belongs to that value.
    void addParameter(const EffectParameter& parameter, const CIValue& value, Action action);
    /// 96 x 24 points, in the middle, without a caption.
    void addPushButton(const QString& title, const QString& toolTip, Action action);
    /// What taking a change back is called.
    static QString undoName(const ParameterText& text);

private:
    static void connectControl(EffectControl& control, const QString& name, const QString& toolTip, Action action);

    QGridLayout* m_rows;
    EffectControl* m_last = nullptr;
};
