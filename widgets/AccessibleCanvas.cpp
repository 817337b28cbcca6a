#include "widgets/AccessibleCanvas.h"

#include <QAccessibleWidget>

#include <optional>

namespace {

constexpr int kPointRadius = 8; // points: half of a mark on the picture, about

class CanvasFace;

/// One point; it stands for whichever point has that index now.
class PointFace : public QAccessibleInterface {
public:
    PointFace(CanvasFace* canvas, int index)
        : m_canvas(canvas)
        , m_index(index)
    {
    }

    bool isValid() const override { return point().has_value(); }
    QObject* object() const override { return nullptr; }
    QAccessibleInterface* parent() const override;
    QAccessibleInterface* child(int) const override { return nullptr; }
    QAccessibleInterface* childAt(int, int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface*) const override { return -1; }
    QAccessible::Role role() const override { return QAccessible::Graphic; }
    QString text(QAccessible::Text type) const override;
    void setText(QAccessible::Text, const QString&) override { }
    QRect rect() const override;
    QAccessible::State state() const override;

private:
    std::optional<CanvasPoint> point() const;

    CanvasFace* m_canvas;
    int m_index;
};

class CanvasFace : public QAccessibleWidget {
public:
    explicit CanvasFace(QWidget* view)
        : QAccessibleWidget(view, QAccessible::Canvas)
    {
    }
    ~CanvasFace() override
    {
        for (const QAccessible::Id id : m_points)
            QAccessible::deleteAccessibleInterface(id);
    }

    QWidget* view() const { return widget(); }
    QList<CanvasPoint> points() const { return canvas() ? canvas()->canvasPoints() : QList<CanvasPoint>(); }

    QString text(QAccessible::Text type) const override
    {
        return type == QAccessible::Value && canvas() ? canvas()->canvasValue() : QAccessibleWidget::text(type);
    }
    // First the points, then the widgets on it.
    int childCount() const override { return int(points().size()) + QAccessibleWidget::childCount(); }
    QAccessibleInterface* child(int index) const override
    {
        const int count = int(points().size());
        if (index < 0 || index >= count)
            return QAccessibleWidget::child(index - count);
        while (m_points.size() <= index)
            m_points.append(QAccessible::registerAccessibleInterface(
                new PointFace(const_cast<CanvasFace*>(this), int(m_points.size()))));
        return QAccessible::accessibleInterface(m_points[index]);
    }
    int indexOfChild(const QAccessibleInterface* child) const override
    {
        if (const int index = QAccessibleWidget::indexOfChild(child); index >= 0)
            return int(points().size()) + index;
        return int(m_points.indexOf(QAccessible::uniqueId(const_cast<QAccessibleInterface*>(child))));
    }
    QAccessibleInterface* focusChild() const override
    {
        const QList<CanvasPoint> all = points();
        for (int i = 0; i < all.size(); ++i)
            if (all[i].selected)
                return child(i);
        return QAccessibleWidget::focusChild();
    }

private:
    /// Null while the view is going away.
    const AccessibleCanvas* canvas() const { return dynamic_cast<const AccessibleCanvas*>(object()); }

    mutable QList<QAccessible::Id> m_points; // grows as readers ask for them
};

std::optional<CanvasPoint> PointFace::point() const
{
    const QList<CanvasPoint> points = m_canvas->points();
    return m_index < points.size() ? std::optional(points[m_index]) : std::nullopt;
}

QAccessibleInterface* PointFace::parent() const { return m_canvas; }

QString PointFace::text(QAccessible::Text type) const
{
    const std::optional<CanvasPoint> here = point();
    if (here && type == QAccessible::Name)
        return here->name;
    return here && (type == QAccessible::Description || type == QAccessible::Value) ? here->position : QString();
}

QRect PointFace::rect() const
{
    const std::optional<CanvasPoint> here = point();
    if (!here)
        return {};
    const QPoint center = m_canvas->view()->mapToGlobal(here->place.toPoint());
    return {center - QPoint(kPointRadius, kPointRadius), QSize(2 * kPointRadius, 2 * kPointRadius)};
}

QAccessible::State PointFace::state() const
{
    QAccessible::State state;
    const std::optional<CanvasPoint> here = point();
    state.invalid = !here;
    state.invisible = !here || !m_canvas->view()->isVisible();
    state.offscreen = !here || !m_canvas->view()->rect().contains(here->place.toPoint());
    state.focusable = state.movable = bool(here);
    state.focused = here && here->selected && m_canvas->view()->hasFocus();
    return state;
}

QAccessibleInterface* canvasFace(const QString&, QObject* object)
{
    return dynamic_cast<AccessibleCanvas*>(object) ? new CanvasFace(qobject_cast<QWidget*>(object)) : nullptr;
}

} // namespace

void AccessibleCanvas::installAccessibleCanvas()
{
    static const bool installed = (QAccessible::installFactory(canvasFace), true);
    Q_UNUSED(installed);
}

void AccessibleCanvas::notifyPoint(QWidget* view, qsizetype index, QAccessible::Event event)
{
    if (!QAccessible::isActive())
        return;
    QAccessibleEvent told(view, event);
    told.setChild(int(index));
    QAccessible::updateAccessibility(&told);
}
