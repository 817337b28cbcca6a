// Images read on a coarser lattice, where a cell is the mean of 2^n by 2^n cells: what wide blurs work on.
#pragma once

#include "platform/coreimage/graph/Planes.h"

#include <memory>

namespace ci {

/// The coarse cells that touch `area`, and the fine cells of a coarse area. Coarse cell (i, j) covers the columns
/// i * 2^n to (i + 1) * 2^n - 1.
GridRect halvedArea(const GridRect& area, int times);
GridRect fineArea(const GridRect& coarse, int times);

/// Works the means out as they are asked for. `source` was opened for `fineArea(area, times)`.
class HalvingReader : public RowReader {
public:
    HalvingReader(RowReader& source, const GridRect& area, int times, Scratch&);
    Row row(int y) override;

private:
    RowReader& m_source;
    GridRect m_area;
    int m_times;
    MutableRow m_sum;
};

/// The means of a whole image, worked out once for all tiles of a render. Only where `source` is finite, or repeats
/// the rim of what is.
class HalvedCopy {
public:
    /// In parallel. Null when that was cancelled.
    static std::shared_ptr<const HalvedCopy> make(const Node& source, const Render&, int times);
    bool fits(const Grid&, int times) const;
    /// Rows of any coarse area. What lies beyond the copy repeats its rim: the edge of a clamped image, or
    /// transparency.
    std::unique_ptr<RowReader> open(const Render&, const GridRect& area, Scratch&) const;

private:
    Grid m_grid; // of the image
    int m_times = 0;
    Planes m_means;
    std::unique_ptr<float[]> m_memory;
};

} // namespace ci
