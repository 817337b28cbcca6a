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

/// A control's value, or a stored one, as the type of the parameter's field.
template <class T>
T parameterValue(const CIValue& value);
template <>
inline bool parameterValue(const CIValue& value)
{
    return value.toBool();
}
template <>
inline float parameterValue(const CIValue& value)
{
    return value.toFloat();
}
template <>
inline double parameterValue(const CIValue& value)
{
    return value.toDouble();
}
template <>
inline CIColor parameterValue(const CIValue& value)
{
    return value.toColor();
}
/// Cut to whole numbers, and to what can be drawn in a lifetime: stored dictionaries may hold anything.
template <>
inline int parameterValue(const CIValue& value)
{
    constexpr double kMost = 100'000;
    const double number = value.toDouble();
    return number > kMost ? int(kMost) : number > -kMost ? int(number) : 0;
}
