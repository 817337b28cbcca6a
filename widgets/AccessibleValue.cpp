#include "widgets/AccessibleValue.h"

#include <QAccessible>
#include <QAccessibleWidget>

namespace {

class ValueFace : public QAccessibleWidget, public QAccessibleValueInterface {
public:
    ValueFace(QWidget* widget, AccessibleValue& value)
        : QAccessibleWidget(widget, QAccessible::Slider)
        , m_value(value)
    {
    }

    void* interface_cast(QAccessible::InterfaceType type) override
    {
        if (type == QAccessible::ValueInterface)
            return static_cast<QAccessibleValueInterface*>(this);
        return QAccessibleWidget::interface_cast(type);
    }
    QString text(QAccessible::Text type) const override
    {
        return type == QAccessible::Value ? m_value.valueText() : QAccessibleWidget::text(type);
    }

    QVariant currentValue() const override { return m_value.valueRange().value; }
    void setCurrentValue(const QVariant& value) override { m_value.takeValue(value.toDouble()); }
    QVariant maximumValue() const override { return m_value.valueRange().maximum; }
    QVariant minimumValue() const override { return m_value.valueRange().minimum; }
    QVariant minimumStepSize() const override { return m_value.valueRange().step; }

private:
    AccessibleValue& m_value;
};

QAccessibleInterface* valueFace(const QString&, QObject* object)
{
    auto* value = dynamic_cast<AccessibleValue*>(object);
    return value ? new ValueFace(static_cast<QWidget*>(object), *value) : nullptr;
}

} // namespace

void AccessibleValue::installAccessibleValue()
{
    static const bool installed = (QAccessible::installFactory(valueFace), true);
    Q_UNUSED(installed);
}

void AccessibleValue::notifyValue(QWidget* widget, double value)
{
    QAccessibleValueChangeEvent event(widget, value);
    QAccessible::updateAccessibility(&event);
}
