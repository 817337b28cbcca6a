// The scroll view around a zoomed canvas.
#pragma once

#include "platform/coreimage/CIGeometry.h"

#include <QAbstractScrollArea>

class ZoomedCanvas;

/// Scrolls a canvas that is, in points, as large as its bounds times its zoom. Nothing of that size is ever made: the
/// canvas is the viewport and draws the visible part.
class CanvasScrollView : public QAbstractScrollArea {
    Q_OBJECT
public:
    explicit CanvasScrollView(QWidget* parent = nullptr);
    ~CanvasScrollView() override;

    /// Takes the canvas in. Once.
    void setCanvas(ZoomedCanvas* canvas);

    /// Scroll position and size of the visible part, in points from the lower left corner of the whole canvas; y up.
    CIRect clipBounds() const;
    void setFrameSize(CIPoint size);
    /// Goes to the nearest possible position; fractions of a point are kept.
    void setScrollPosition(CIPoint lowerLeft);

protected:
    bool viewportEvent(QEvent*) override;
    void scrollContentsBy(int dx, int dy) override;

private:
    void updateScrollBars();

    ZoomedCanvas* m_canvas = nullptr;
    CIPoint m_frameSize;
    CIPoint m_position; // clamped into the frame
    QSizeF m_visibleSize;
    bool m_moving = false; // the scroll bars follow the position, not the other way round
};
