#include "platform/coreimage/graph/Node.h"

#include "platform/coreimage/kernel/Batch.h"

#include <algorithm>
#include <cstring>

namespace ci {

namespace {

constexpr double kFarthestCell = 1 << 28;

int cell(double v) { return int(std::clamp(v, -kFarthestCell, kFarthestCell)); }

int paddedWidth(int width) { return (width + kRowPadding - 1) / kRowPadding * kRowPadding; }

} // namespace

GridRect GridRect::intersected(const GridRect& r) const
{
    GridRect both{std::max(x0, r.x0), std::max(y0, r.y0), std::min(x1, r.x1), std::min(y1, r.y1)};
    return both.isEmpty() ? GridRect{x0, y0, x0, y0} : both;
}

GridRect Grid::cellsIn(const CIRect& r) const
{
    // A center on the lower or left side counts, one on the upper or right side does not.
    const auto first = [this](double side, double phase) { return cell(std::ceil(side * scale - phase - 0.5 - 1e-6)); };
    return {first(r.left(), phaseX), first(r.bottom(), phaseY), first(r.right(), phaseX), first(r.top(), phaseY)};
}

GridRect Grid::cellsTouching(const CIRect& r) const
{
    return {cell(std::floor(r.left() * scale - phaseX + 1e-6)), cell(std::floor(r.bottom() * scale - phaseY + 1e-6)),
        cell(std::ceil(r.right() * scale - phaseX - 1e-6)), cell(std::ceil(r.top() * scale - phaseY - 1e-6))};
}

std::optional<CodeForm> Node::codeForm(const Render& render) const
{
    Scratch& scratch = Scratch::ofThread();
    const ScratchScope scope(scratch);
    const Opened opened = open(render, {}, Form::Codes, scratch);
    return opened.codes ? std::optional(opened.codes->form()) : std::nullopt;
}

MutableRow allocateRow(Scratch& scratch, int width)
{
    const std::size_t stride = std::size_t(paddedWidth(width)) + kRowPadding; // apart, so that planes don't collide
    float* p = scratch.floats(4 * stride);
    return {p, p + stride, p + 2 * stride, p + 3 * stride};
}

Row zeroRow(Scratch& scratch, int width)
{
    const std::size_t padded = std::size_t(paddedWidth(width)) + kRowPadding;
    float* zeros = scratch.floats(padded);
    std::fill_n(zeros, padded, 0.0f);
    return {zeros, zeros, zeros, zeros};
}

ExtentClip::ExtentClip(const CIRect& extent, const Render& render, const GridRect& area)
    : m_area(area)
    , m_inside(area.intersected(render.grid.cellsIn(extent)))
{
}

void ExtentClip::clearOutside(const MutableRow& row) const
{
    const int before = m_inside.x0 - m_area.x0, after = m_area.x1 - m_inside.x1, width = m_area.width();
    if (before <= 0 && after <= 0)
        return;
    for (float* plane : {row.r, row.g, row.b, row.a}) {
        std::fill_n(plane, std::max(before, 0), 0.0f);
        std::fill_n(plane + width - std::max(after, 0), std::max(after, 0), 0.0f);
    }
}

} // namespace ci
