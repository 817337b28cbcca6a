// Bitmaps in the graph.
#pragma once

#include "platform/coreimage/graph/Interleaved.h"
#include "platform/coreimage/graph/Levels.h"

#include <mutex>
#include <vector>

namespace ci {

/// A bitmap with its lower left corner at the origin. At full size its rows are read as they stand; on other grids
/// each cell is the mean of the area it covers, taken from the nearest finer of the halved copies.
class BitmapNode : public Node {
public:
    explicit BitmapNode(const CIBitmap&);

    void prepare(const Render&) const override;
    Opened open(const Render&, const GridRect& area, Form accepts, Scratch&) const override;

    const CIBitmap& bitmap() const { return m_bitmap; }
    /// The halved copies, largest first; made on first use.
    std::shared_ptr<const std::vector<Level>> levels() const;

private:
    std::unique_ptr<CodeTable> tableOf(const GridRect& cells) const;
    std::shared_ptr<const GridCopy> copyFor(const Grid&) const;
    bool isAskedAgain(const Grid&) const;
    CIBitmap m_bitmap;
    mutable std::mutex m_mutex; // guards what follows; never held while other threads' work is waited for
    mutable std::shared_ptr<const std::vector<Level>> m_levels;
    mutable std::vector<std::shared_ptr<const GridCopy>> m_copies; // newest last
    mutable std::vector<Grid> m_asked; // of late
};

} // namespace ci
