// Bitmaps in the graph, and their reduced copies.
#pragma once

#include "platform/coreimage/graph/Interleaved.h"
#include "platform/coreimage/graph/Transfer.h"

#include <mutex>
#include <vector>

namespace ci {

/// A reduced bitmap: interleaved premultiplied linear components, of 16 bits (0 to 65535 for 0 to 1) where the
/// original is limited to 0 to 1, else floats. Row 0 is the top.
struct Level {
    int width = 0, height = 0;
    std::vector<std::uint16_t> words;
    std::vector<float> floats;
    void allocate(int w, int h, bool wide);
    bool isWide() const { return !floats.empty(); }
    void readRow(int y, int from, int count, const MutableRow& row) const;
    /// Adds texels times `weight` to `sums`, four floats a texel.
    void addRow(int y, int from, int count, float weight, float* sums) const;
    void writeRow(int y, int from, int count, const Row& row);
};

/// A bitmap with its lower left corner at the origin. At full size its rows are read as they stand; on other grids
/// each cell is the mean of the area it covers, taken from the nearest finer of the halved copies.
class BitmapNode : public Node {
public:
    explicit BitmapNode(const CIBitmap&);

    void prepare(const Render&) const override;
    std::unique_ptr<RowReader> open(const Render&, const GridRect& area, Scratch&) const override;

    bool codeTables(const Render&, CodeTables&) const override;
    bool hasCodes(const Render&, CodeForm&) const override;
    std::unique_ptr<CodeReader> openCodes(const Render&, const GridRect& area, Scratch&) const override;

    const CIBitmap& bitmap() const { return m_bitmap; }
    /// The halved copies, largest first; made on first use.
    std::shared_ptr<const std::vector<Level>> levels() const;

    std::shared_ptr<const GridCopy> copyFor(const Grid&) const override;

private:
    bool isAskedAgain(const Grid&) const;
    CIBitmap m_bitmap;
    mutable std::mutex m_mutex; // guards what follows; never held while other threads' work is waited for
    mutable std::shared_ptr<const std::vector<Level>> m_levels;
    mutable std::vector<std::shared_ptr<const GridCopy>> m_copies; // newest last
    mutable std::vector<Grid> m_asked; // of late
};

} // namespace ci
