#include "widgets/rows/ChoiceRow.h"

#include "widgets/PanelPopUp.h"

ChoiceRow::ChoiceRow(QWidget* panel, const QStringList& titles, ValueBinding value)
    : ValueRow(panel, std::move(value))
    , menu(new PanelPopUp(panel))
{
    menu->addItems(titles);
    connect(menu, &PanelPopUp::activated, this, [this](int index) {
        if (index != int(m_value.get().toDouble()))
            m_value.set(index);
    });
    show();
}

void ChoiceRow::show() { menu->setCurrentIndex(int(m_value.get().toDouble())); }
