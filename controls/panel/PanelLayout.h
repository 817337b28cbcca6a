// Which row an input gets in the panel, and where: pure parts.
#pragma once

#include "platform/coreimage/CIFilter.h"

#include <cstdint>
#include <vector>

#include <QRect>

enum class RowKind : std::int32_t {
    None = 0,
    Slider = 1,
    ColorWell = 2,
    CheckBox = 3,
    ImageWell = 4,
    Transform = 5,
    Vector = 6,
    Offset = 8,
};

/// `hasBackground` tells whether the filter has an image input "inputBackgroundImage", which then receives the user's
/// picture instead of "inputImage". The input that receives it gets no row, nor do inputs with points on the picture.
RowKind rowKindOf(const CIInputAttributes& input, bool hasBackground);

/// True if the filter has an image input of that key.
bool hasBackgroundImage(const CIFilter& filter);

/// Stacks rows from the top down. Lengths are points, y up, the origin at the panel's lower left corner.
struct RowStack {
    std::int32_t controlLeftPosition = 2;
    std::int32_t controlTopPosition = 0; // top of the next row
    std::int32_t colorWellOffset = 0; // left of the next color well
    RowKind lastControlType = RowKind::None;

    /// The place of the next row in a panel of that width. Two color wells one after the other share a line.
    QRect place(RowKind kind, int panelWidth);
    /// The same for what is not a row and has a height of its own.
    QRect placeFold(int height, int panelWidth);
    /// How wide that is.
    int foldWidth(int panelWidth) const { return panelWidth - controlLeftPosition - 10; }
};
