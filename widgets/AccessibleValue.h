// What assistive technology is told about a widget that has a value.
#pragma once

class QString;
class QWidget;

/// A widget that is also this becomes a slider. It has to call `installAccessibleValue` first of all in its
/// constructor.
class AccessibleValue {
public:
    struct Range {
        double value, minimum, maximum, step;
    };
    virtual ~AccessibleValue() = default;
    virtual Range valueRange() const = 0;
    virtual QString valueText() const = 0; // with its unit
    /// As if the user had set it.
    virtual void takeValue(double value) = 0;

protected:
    /// Does nothing the second time.
    static void installAccessibleValue();
    static void notifyValue(QWidget* widget, double value);
};
