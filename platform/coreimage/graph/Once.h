// What several parts of a graph read, worked out once for each tile.
#pragma once

#include "platform/coreimage/graph/Planes.h"

#include <vector>

namespace ci {

/// What the nodes of `onceNode` have worked out for the tile that this thread is at; forgotten with the object.
class TileMemory {
public:
    TileMemory();
    ~TileMemory();
    TileMemory(const TileMemory&) = delete;
    TileMemory& operator=(const TileMemory&) = delete;

    /// Null outside of a tile.
    static TileMemory* ofThread();
    /// At least that area of the node's source.
    Planes planes(const Node& node, const Node& source, const Render&, const GridRect& area);

private:
    struct Entry {
        const Node* node;
        Grid grid;
        Planes planes;
    };
    TileMemory* const m_before; // of a tile around this one
    Scratch& m_scratch; // apart from that of the readers, which is rewound in between
    ScratchScope m_scope;
    std::vector<Entry> m_entries;
};

/// The same image; all that read it for the same tile share what was worked out first.
NodePtr onceNode(NodePtr);

} // namespace ci
