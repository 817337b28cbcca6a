// A pop-up menu.
#pragma once

#include "widgets/rows/ValueRow.h"

#include <QStringList>

class PanelPopUp;

/// The index of one of several titles.
class ChoiceRow : public ValueRow {
    Q_OBJECT
public:
    ChoiceRow(QWidget* panel, const QStringList& titles, ValueBinding value);

    void show() override;

    PanelPopUp* const menu;
};
