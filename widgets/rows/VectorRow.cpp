#include "widgets/rows/VectorRow.h"

#include "widgets/ReadoutField.h"

#include <algorithm>

VectorRow::VectorRow(QWidget* panel, int count, ValueBinding value, QString (*text)(double))
    : ValueRow(panel, std::move(value))
    , m_text(text)
{
    for (std::size_t i = 0; i < std::size_t(count); ++i) {
        auto* field = m_readouts.emplace_back(new ReadoutField(panel));
        connect(field, &QLineEdit::textEdited, this, [this, i] { typed(i); });
        connect(field, &ReadoutField::committed, this, [this, i] { committed(i); });
        connect(field, &ReadoutField::givenUp, this, &VectorRow::giveUp);
    }
    show();
}

void VectorRow::show()
{
    for (std::size_t i = 0; i < m_readouts.size(); ++i)
        m_readouts[i]->setShownText(text(i));
}

QString VectorRow::text(std::size_t component) const
{
    return m_text(m_value.get().toVector().valueAtIndex(component));
}

void VectorRow::typed(std::size_t component)
{
    if (component >= m_readouts.size())
        return;
    const std::optional<double> number = typedNumber(m_readouts[component]->text());
    if (!number)
        return;
    if (!isChanging())
        m_before = m_value.get();
    std::vector<double> values = m_value.get().toVector().values();
    values.resize(std::max<std::size_t>(4, m_readouts.size()));
    values[component] = *number;
    beginChange();
    m_value.set(CIVector(std::move(values)));
}

void VectorRow::committed(std::size_t component)
{
    if (component >= m_readouts.size())
        return;
    typed(component);
    ReadoutField& field = *m_readouts[component];
    field.setShownText(typedNumber(field.text()) ? field.text() : text(component));
    endChange();
}

void VectorRow::giveUp()
{
    if (!isChanging())
        return;
    m_value.set(m_before);
    endChange();
    show();
}
