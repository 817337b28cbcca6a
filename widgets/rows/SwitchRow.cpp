#include "widgets/rows/SwitchRow.h"

#include "widgets/PanelCheckBox.h"

SwitchRow::SwitchRow(QWidget* panel, ValueBinding value)
    : ValueRow(panel, std::move(value))
    , box(new PanelCheckBox(panel))
{
    connect(box, &QCheckBox::clicked, this, &SwitchRow::clicked);
    show();
}

void SwitchRow::show() { box->setChecked(m_value.get().toBool()); }

void SwitchRow::clicked() { m_value.set(box->isChecked()); }
