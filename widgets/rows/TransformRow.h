// A slider with a readout for each part of a transform.
#pragma once

#include "widgets/rows/NumberRow.h"
#include "widgets/rows/TransformParts.h"

#include <array>

/// A transform, or a vector of its six numbers, as scale, angle, stretch and skew. Its translation stays. What makes no
/// reasonable transform is refused.
class TransformRow : public ValueRow {
    Q_OBJECT
public:
    enum Line { Scale, Angle, Stretch, Skew };

    TransformRow(QWidget* panel, ValueBinding value);

    void show() override;
    NumberRow& line(Line line) const { return *m_lines[line]; }
    void sliderMoved(Line line) { m_lines[line]->sliderMoved(); }
    void readoutTyped(Line line) { m_lines[line]->readoutTyped(); }

private:
    NumberRow* addLine(float TransformParts::*part, const NumberLook& look);
    void setPart(float TransformParts::*part, float number);

    TransformParts m_parts; // kept, since a transform that flattens the plane doesn't tell them all
    std::array<NumberRow*, 4> m_lines;
};
