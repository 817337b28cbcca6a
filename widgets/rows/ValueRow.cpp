#include "widgets/rows/ValueRow.h"

#include <utility>

bool ValueRow::canReset() const
{
    const CIValue standard = m_value.standard();
    return !standard.isNothing() && !(standard == m_value.get());
}

void ValueRow::reset()
{
    if (!canReset())
        return;
    m_value.set(m_value.standard());
    show();
}

void ValueRow::beginChange()
{
    if (!std::exchange(m_changing, true))
        m_value.begin();
}

void ValueRow::endChange()
{
    if (std::exchange(m_changing, false))
        m_value.end();
}
