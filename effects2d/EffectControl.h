// One control of an effect's panel.
#pragma once

#include "platform/coreimage/CIValue.h"

#include <QWidget>

/// Holds a parameter's value: a number, a boolean, a color, or the index of a choice.
class EffectControl : public QWidget {
    Q_OBJECT
public:
    using QWidget::QWidget;

    virtual CIValue value() const = 0;
    /// Shows a value without telling anybody.
    virtual void setValue(const CIValue& value) = 0;

signals:
    /// The user has changed the value, or pressed the button.
    void changed();
};
