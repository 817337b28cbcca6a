// A check box.
#pragma once

#include "widgets/rows/ValueRow.h"

class PanelCheckBox;

/// A boolean.
class SwitchRow : public ValueRow {
    Q_OBJECT
public:
    SwitchRow(QWidget* panel, ValueBinding value);

    void show() override;
    /// Takes what the box says.
    void clicked();

    PanelCheckBox* const box;
};
