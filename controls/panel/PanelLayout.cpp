#include "controls/panel/PanelLayout.h"

namespace {

constexpr int kColorWellStep = 30;

/// A row that fills a line of the panel.
struct Line {
    int height;
    int step; // to the next row
    int rightMargin;
};

Line lineOf(RowKind kind)
{
    switch (kind) {
    case RowKind::Slider:
        return {18, 18, 12};
    case RowKind::ImageWell:
        return {44, 48, 10};
    case RowKind::Transform:
        return {67, 68, 10};
    default:
        return {16, 17, 10};
    }
}

} // namespace

RowKind rowKindOf(const CIInputAttributes& input, bool hasBackground)
{
    if (input.isNumber())
        return input.kind == InputKind::Boolean ? RowKind::CheckBox : RowKind::Slider;
    if (input.isImage())
        return input.key == (hasBackground ? "inputBackgroundImage" : "inputImage") ? RowKind::None
                                                                                    : RowKind::ImageWell;
    if (input.isColor())
        return RowKind::ColorWell;
    if (input.kind == InputKind::Transform)
        return RowKind::Transform;
    if (input.kind == InputKind::Vector)
        return RowKind::Vector;
    return input.kind == InputKind::Offset ? RowKind::Offset : RowKind::None;
}

bool hasBackgroundImage(const CIFilter& filter)
{
    const CIInputAttributes* input = filter.attributesForKey("inputBackgroundImage");
    return input && input->isImage();
}

QRect RowStack::place(RowKind kind, int panelWidth)
{
    if (kind == RowKind::ColorWell) {
        const int half = (panelWidth - 20) / 2;
        if (lastControlType != RowKind::ColorWell) {
            colorWellOffset = controlLeftPosition;
        } else {
            controlTopPosition += kColorWellStep;
            colorWellOffset += half;
            if (colorWellOffset > controlLeftPosition + half) {
                colorWellOffset = controlLeftPosition;
                controlTopPosition -= kColorWellStep;
            }
        }
        const QRect frame(colorWellOffset, controlTopPosition - 26, half, 26);
        controlTopPosition -= kColorWellStep;
        lastControlType = kind;
        return frame;
    }
    const Line line = lineOf(kind);
    const int left = kind == RowKind::Slider ? 0 : controlLeftPosition;
    const QRect frame(left, controlTopPosition - line.height, panelWidth - line.rightMargin, line.height);
    controlTopPosition -= line.step;
    lastControlType = kind;
    return frame;
}

QRect RowStack::placeFold(int height, int panelWidth)
{
    const QRect frame(controlLeftPosition, controlTopPosition - height, foldWidth(panelWidth), height);
    controlTopPosition -= height + 1;
    lastControlType = RowKind::None;
    return frame;
}
