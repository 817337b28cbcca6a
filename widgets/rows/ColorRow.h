// A color well.
#pragma once

#include "widgets/rows/ValueRow.h"

#include <QColor>

class ColorWell;

/// Components from 0 to 1, as far as a QColor goes.
QColor colorOf(const CIColor& color);
CIColor colorOf(const QColor& color);

/// A color. While the color panel is open colors are only tried; picking one is a change. A row that goes meanwhile
/// brings the old color back.
class ColorRow : public ValueRow {
    Q_OBJECT
public:
    ColorRow(QWidget* panel, ValueBinding value);
    ~ColorRow() override;

    void show() override;
    /// Takes the well's color.
    void picked();

    ColorWell* const well;

private:
    void tried(const QColor& color);

    CIValue m_triedOver; // the color while others are tried
};
