#include "widgets/rows/TransformRow.h"

#include "widgets/ValueSlider.h"

#include <cmath>
#include <numbers>
#include <utility>

namespace {

CIAffineTransform transformOf(const CIValue& value)
{
    if (value.isTransform())
        return value.toTransform();
    const CIVector v = value.toVector(); // all zeros for nothing
    return {v.valueAtIndex(0), v.valueAtIndex(1), v.valueAtIndex(2), v.valueAtIndex(3), v.valueAtIndex(4),
        v.valueAtIndex(5)};
}

bool isReasonable(const CIAffineTransform& t)
{
    for (double number : {t.a, t.b, t.c, t.d})
        if (!(std::abs(number) <= kLargestTypedNumber))
            return false;
    return true;
}

} // namespace

TransformRow::TransformRow(QWidget* panel, ValueBinding value)
    : ValueRow(panel, std::move(value))
    , m_parts(transformParts(transformOf(m_value.get())))
{
    const NumberLook factor{.min = -2, .max = 2, .mark = 0, .isFactor = true};
    const NumberLook turn{.max = 2 * std::numbers::pi, .unitClass = UnitClass::kAngle, .mark = 0};
    m_lines = {addLine(&TransformParts::scale, factor), addLine(&TransformParts::angle, turn),
        addLine(&TransformParts::stretch, factor), addLine(&TransformParts::skew, {.min = -10, .max = 10, .mark = 0})};
}

NumberRow* TransformRow::addLine(float TransformParts::*part, const NumberLook& look)
{
    auto* line = new NumberRow(static_cast<QWidget*>(parent()), look,
        {.get = [this, part] { return m_parts.*part; },
            .set = [this, part](const CIValue& number) { setPart(part, number.toFloat()); },
            .begin = [this] { beginChange(); },
            .end = [this] { endChange(); }});
    connect(line->slider, &ValueSlider::standardValueWanted, this, &TransformRow::reset); // of all parts
    return line;
}

void TransformRow::show()
{
    m_parts = transformParts(transformOf(m_value.get()));
    for (NumberRow* line : m_lines)
        line->show();
}

void TransformRow::setPart(float TransformParts::*part, float number)
{
    const CIValue old = m_value.get();
    const CIAffineTransform before = transformOf(old);
    TransformParts parts = m_parts;
    parts.*part = number;
    const CIAffineTransform t = composedTransform(parts, {before.tx, before.ty});
    if (!isReasonable(t))
        return;
    m_parts = parts;
    if (old.isTransform())
        m_value.set(t);
    else
        m_value.set(CIVector{t.a, t.b, t.c, t.d, t.tx, t.ty});
}
