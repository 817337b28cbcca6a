#include "widgets/AccessibleValueSlider.h"

#include "widgets/ValueSlider.h"

#include <QAccessible>
#include <QAccessibleWidget>

namespace {

class AccessibleValueSlider : public QAccessibleWidget, public QAccessibleValueInterface {
public:
    explicit AccessibleValueSlider(ValueSlider* slider)
        : QAccessibleWidget(slider, QAccessible::Slider)
        , m_slider(slider)
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
        return type == QAccessible::Value ? m_slider->valueText() : QAccessibleWidget::text(type);
    }

    QVariant currentValue() const override { return m_slider->value(); }
    void setCurrentValue(const QVariant& value) override { m_slider->moveTo(value.toDouble()); }
    QVariant maximumValue() const override { return m_slider->maximum(); }
    QVariant minimumValue() const override { return m_slider->minimum(); }
    QVariant minimumStepSize() const override { return m_slider->singleStep(); }

private:
    ValueSlider* m_slider;
};

QAccessibleInterface* accessibleValueSlider(const QString&, QObject* object)
{
    auto* slider = qobject_cast<ValueSlider*>(object);
    return slider ? new AccessibleValueSlider(slider) : nullptr;
}

} // namespace

void installAccessibleValueSlider()
{
    static const bool installed = (QAccessible::installFactory(accessibleValueSlider), true);
    Q_UNUSED(installed);
}

void notifyAccessibleValueSlider(ValueSlider* slider)
{
    QAccessibleValueChangeEvent event(slider, slider->value());
    QAccessible::updateAccessibility(&event);
}
