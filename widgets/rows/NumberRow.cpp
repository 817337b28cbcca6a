#include "widgets/rows/NumberRow.h"

#include "widgets/ReadoutField.h"
#include "widgets/ValueSlider.h"

#include <algorithm>
#include <cmath>
#include <limits>

NumberRow::NumberRow(QWidget* panel, const NumberLook& look, ValueBinding value)
    : ValueRow(panel, std::move(value))
    , slider(new ValueSlider(panel))
    , readout(new ReadoutField(panel))
    , m_look(look)
{
    slider->setRange(look.min, look.max);
    slider->setWhole(look.whole);
    slider->setStandardValue(look.mark);
    connect(slider, &ValueSlider::pressed, this, &NumberRow::beginChange);
    connect(slider, &ValueSlider::valueChanged, this, &NumberRow::sliderMoved);
    connect(slider, &ValueSlider::released, this, [this] {
        if (!m_look.continuous)
            change(sliderNumber());
        endChange();
    });
    connect(slider, &ValueSlider::standardValueWanted, this, &NumberRow::reset);
    connect(readout, &ReadoutField::committed, this, &NumberRow::readoutTyped);
    show();
}

void NumberRow::show()
{
    const CIValue number = m_value.get();
    makeRoomFor(number.toDouble());
    slider->setValue(m_look.position(number.toDouble()));
    showText(m_look.text(double(number.toFloat())));
}

void NumberRow::makeRoomFor(double number)
{
    if (m_look.growth == 0 || !slider->isEnabled() || !std::isfinite(number))
        return;
    constexpr double kEndless = std::numeric_limits<double>::infinity();
    double low = slider->minimum(), high = slider->maximum();
    if (number > high)
        high = std::max(high, std::min(std::max(number, m_look.max * m_look.growth), m_look.most.value_or(kEndless)));
    if (number < low)
        low = std::min(low, std::max(std::min(number, m_look.min * m_look.growth), m_look.least.value_or(-kEndless)));
    slider->setRange(low, high);
}

void NumberRow::showText(const QString& text)
{
    readout->setShownText(text);
    slider->setValueText(text.trimmed() + unitSign(m_look.unitClass));
}

double NumberRow::sliderNumber() const { return m_look.rounded(m_look.numberAt(slider->value())); }

void NumberRow::sliderMoved()
{
    if (isChanging() && !m_look.continuous)
        showText(m_look.text(sliderNumber()));
    else
        change(sliderNumber());
}

void NumberRow::readoutTyped()
{
    const QString text = readout->text();
    const std::optional<double> typed = typedNumber(text);
    if (typed && change(m_look.typed(*typed)) && !m_look.decimals)
        showText(text);
    else
        readout->restore();
}

/// False if the number was refused; the old one is shown then.
bool NumberRow::change(double number)
{
    if (float(number) == float(m_look.rounded(m_value.get().toDouble())))
        return true;
    m_value.set(number);
    show();
    return m_value.get().toFloat() == float(number);
}
