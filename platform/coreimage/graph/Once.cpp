#include "platform/coreimage/graph/Once.h"

#include "platform/coreimage/graph/Basics.h"

namespace ci {

namespace {

thread_local TileMemory* present = nullptr;

Scratch& memoryOfThread()
{
    static thread_local Scratch scratch;
    return scratch;
}

bool covers(const GridRect& all, const GridRect& part)
{
    return all.x0 <= part.x0 && all.y0 <= part.y0 && all.x1 >= part.x1 && all.y1 >= part.y1;
}

class OnceNode : public WrapperNode {
public:
    explicit OnceNode(const NodePtr& source)
        : WrapperNode(source, source->extent(), source->isOpaque())
    {
    }
    CIRect repeats() const override { return m_source->repeats(); }
    Opened open(const Render& render, const GridRect& area, Form accepts, Scratch& scratch) const override
    {
        if (accepts != Form::Rows)
            return {};
        TileMemory* const memory = TileMemory::ofThread();
        if (!memory)
            return m_source->open(render, area, accepts, scratch);
        return {.rows = std::make_unique<PlanesReader>(
                    memory->planes(*this, *m_source, render, area), CIRect::infinite(), render, area)};
    }
    int reach(const Grid& grid) const override { return std::max(1, m_source->reach(grid)); }
};

} // namespace

TileMemory::TileMemory()
    : m_before(present)
    , m_scratch(memoryOfThread())
    , m_scope(m_scratch)
{
    present = this;
}

TileMemory::~TileMemory() { present = m_before; }

TileMemory* TileMemory::ofThread() { return present; }

Planes TileMemory::planes(const Node& node, const Node& source, const Render& render, const GridRect& area)
{
    for (const Entry& entry : m_entries)
        if (entry.node == &node && entry.grid == render.grid && covers(entry.planes.area, area))
            return entry.planes;
    const Planes planes = Planes::allocate(area, m_scratch);
    {
        Scratch& scratch = Scratch::ofThread();
        const ScratchScope scope(scratch);
        planes.fill(*source.rows(render, area, scratch));
    }
    m_entries.push_back({&node, render.grid, planes});
    return planes;
}

NodePtr onceNode(NodePtr source) { return source ? std::make_shared<OnceNode>(std::move(source)) : nullptr; }

} // namespace ci
