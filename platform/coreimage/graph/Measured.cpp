#include "platform/coreimage/graph/Measured.h"

#include "platform/coreimage/graph/Basics.h"

#include <atomic>

namespace ci {

namespace {

class MeasuredNode : public Node {
public:
    MeasuredNode(NodePtr subject, double mostCells, const CIRect& extent, MeasuredRecipe recipe)
        : Node(extent, false)
        , m_subject(std::move(subject))
        , m_recipe(std::move(recipe))
    {
        double cells = m_subject->extent().width * m_subject->extent().height;
        for (; cells > mostCells; cells /= 4)
            m_grid.scale /= 2;
    }
    void prepare(const Render& render) const override
    {
        NodePtr made = m_made.load();
        if (!made) {
            made = make(render);
            if (!made)
                return; // cancelled: nothing of this render will be looked at
            m_made.store(made);
        }
        made->prepare(render);
    }
    Opened open(const Render& render, const GridRect& area, Form accepts, Scratch& scratch) const override
    {
        if (accepts != Form::Rows)
            return {};
        const NodePtr made = m_made.load();
        return (made ? made : constantNode({0, 0, 0, 0}))->open(render, area, accepts, scratch);
    }
    int reach(const Grid& grid) const override
    {
        const NodePtr made = m_made.load();
        return made ? made->reach(grid) : 0;
    }

private:
    NodePtr make(const Render& render) const
    {
        const Render reduced = render.withGrid(m_grid);
        m_subject->prepare(reduced);
        const auto copy = GridCopy::make(*m_subject, reduced, 1e9);
        m_subject->prepare(render); // another reader may share it
        if (!copy)
            return nullptr;
        const CIImage image = m_recipe(copy->viewOn(m_grid), m_grid);
        return image ? image.cropped(extent()).node() : nullptr;
    }

    NodePtr m_subject;
    MeasuredRecipe m_recipe;
    Grid m_grid;
    mutable std::atomic<NodePtr> m_made;
};

} // namespace

CIImage measured(const CIImage& subject, double mostCells, const CIRect& extent, MeasuredRecipe recipe)
{
    if (subject.extent().isInfinite() || subject.extent().isEmpty())
        return {};
    return CIImage(std::make_shared<MeasuredNode>(subject.node(), mostCells, extent, std::move(recipe)));
}

} // namespace ci
