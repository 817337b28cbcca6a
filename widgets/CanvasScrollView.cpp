#include "widgets/CanvasScrollView.h"

#include "widgets/CustomScroller.h"
#include "widgets/PictureLayout.h"
#include "widgets/ZoomedCanvas.h"

#include <cmath>

#include <QEvent>
#include <QScopedValueRollback>
#include <QScrollBar>

CanvasScrollView::CanvasScrollView(QWidget* parent)
    : QAbstractScrollArea(parent)
{
    setFrameShape(QFrame::NoFrame);
    CustomScroller::installIn(*this);
}

CanvasScrollView::~CanvasScrollView() = default;

void CanvasScrollView::setCanvas(ZoomedCanvas* canvas)
{
    m_canvas = canvas;
    setViewport(canvas);
    // The canvas has the keyboard itself; what it leaves, such as Page Down, comes here.
    canvas->setFocusProxy(nullptr);
    setFocusPolicy(Qt::NoFocus);
    setFocusProxy(canvas);
    m_visibleSize = canvas->size();
    canvas->resizeViewBoundCenter(true, int(PictureCenter::None));
}

CIRect CanvasScrollView::clipBounds() const
{
    return {m_position.x, m_position.y, m_visibleSize.width(), m_visibleSize.height()};
}

void CanvasScrollView::setFrameSize(CIPoint size)
{
    m_frameSize = size;
    setScrollPosition(m_position);
}

void CanvasScrollView::setScrollPosition(CIPoint lowerLeft)
{
    m_position = clampedScrollPosition(lowerLeft, m_frameSize, {m_visibleSize.width(), m_visibleSize.height()});
    updateScrollBars();
    m_canvas->update();
}

void CanvasScrollView::updateScrollBars()
{
    const QScopedValueRollback moving(m_moving, true);
    // Both bars could hold each other in place; without them everything fits.
    const QSize whole = maximumViewportSize();
    const bool fits = m_frameSize.x <= whole.width() && m_frameSize.y <= whole.height();
    const auto hidden = [&](double frame, double visible) {
        return fits ? 0 : int(std::ceil(std::max(0.0, frame - visible - 1e-3))); // not for a rounding error
    };
    horizontalScrollBar()->setRange(0, hidden(m_frameSize.x, m_visibleSize.width()));
    verticalScrollBar()->setRange(0, hidden(m_frameSize.y, m_visibleSize.height()));
    horizontalScrollBar()->setPageStep(int(m_visibleSize.width()));
    verticalScrollBar()->setPageStep(int(m_visibleSize.height()));
    horizontalScrollBar()->setSingleStep(20);
    verticalScrollBar()->setSingleStep(20);
    horizontalScrollBar()->setValue(int(std::lround(m_position.x)));
    verticalScrollBar()->setValue(int(std::lround(m_frameSize.y - m_visibleSize.height() - m_position.y)));
}

bool CanvasScrollView::viewportEvent(QEvent* event)
{
    if (event->type() == QEvent::Resize) {
        const QSizeF before = m_visibleSize;
        m_visibleSize = m_canvas->size();
        m_canvas->visibleSizeChanged(before);
    } else if (event->type() == QEvent::LayoutDirectionChange || event->type() == QEvent::LayoutRequest) {
        return QAbstractScrollArea::viewportEvent(event);
    }
    return false; // the canvas handles its own events
}

void CanvasScrollView::scrollContentsBy(int dx, int dy)
{
    if (m_moving)
        return;
    CIPoint position = m_position;
    if (dx != 0)
        position.x = horizontalScrollBar()->value();
    if (dy != 0)
        position.y = m_frameSize.y - m_visibleSize.height() - verticalScrollBar()->value();
    m_position = clampedScrollPosition(position, m_frameSize, {m_visibleSize.width(), m_visibleSize.height()});
    m_canvas->update();
}
