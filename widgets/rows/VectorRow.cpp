#include "widgets/rows/VectorRow.h"

#include "widgets/ReadoutField.h"
#include "widgets/rows/NumberText.h"

namespace {

std::vector<ReadoutField*> fieldsIn(QWidget* panel, int count)
{
    std::vector<ReadoutField*> fields;
    for (int i = 0; i < count; ++i)
        fields.push_back(new ReadoutField(panel));
    return fields;
}

} // namespace

VectorRow::VectorRow(QWidget* panel, int count, ValueBinding value)
    : ValueRow(panel, std::move(value))
    , readouts(fieldsIn(panel, count))
{
    for (std::size_t i = 0; i < readouts.size(); ++i) {
        connect(readouts[i], &QLineEdit::textEdited, this, [this, i] { typed(i); });
        connect(readouts[i], &ReadoutField::committed, this, [this, i] { committed(i); });
        connect(readouts[i], &ReadoutField::givenUp, this, &VectorRow::giveUp);
    }
    show();
}

void VectorRow::show()
{
    const CIVector vector = m_value.get().toVector();
    for (std::size_t i = 0; i < readouts.size(); ++i)
        readouts[i]->setShownText(formattedNumber(vector.valueAtIndex(i), kComponentFormat));
}

void VectorRow::typed(std::size_t component)
{
    const std::optional<double> number = typedNumber(readouts[component]->text());
    if (!number)
        return;
    if (!isChanging())
        m_before = m_value.get();
    const CIVector old = m_value.get().toVector();
    std::vector<double> values{old.X(), old.Y(), old.Z(), old.W()};
    values[component] = *number;
    beginChange();
    m_value.set(CIVector(std::move(values)));
}

void VectorRow::committed(std::size_t component)
{
    ReadoutField* field = readouts[component];
    typed(component);
    field->setShownText(typedNumber(field->text())
            ? field->text()
            : formattedNumber(m_value.get().toVector().valueAtIndex(component), kComponentFormat));
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
