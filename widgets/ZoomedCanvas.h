// A picture that is zoomed and moved about.
#pragma once

#include "platform/coreimage/CIGeometry.h"
#include "widgets/AccessibleCanvas.h"
#include "widgets/ZoomSteps.h"

#include <QWidget>

#include <optional>

class CanvasScrollView;

/// The viewport of a CanvasScrollView: lays a picture out, zooms it with wheel and pinch, and moves it with the middle
/// button or the space bar held. What is drawn is the derived class's affair.
///
/// The widget is as large as the visible part. Its own coordinates ("view coordinates": `bounds`, mouse positions) are
/// picture pixels, y up.
class ZoomedCanvas : public QWidget, public AccessibleCanvas {
    Q_OBJECT
public:
    explicit ZoomedCanvas(CanvasScrollView* scrollView);

    float getZoom() const { return zoom; }
    /// Clamps to 0.1 ... 10 and lays the view out anew. Only what fits a large picture in goes below, to `smallest`.
    void setZoom(float newZoom, float smallest = float(kSmallestZoom));
    /// Lays the view out for the size of window and picture; see layOutPicture. `center` is 0 to 3.
    void resizeViewBoundCenter(bool force, int center);

    CIRect bounds() const { return m_bounds; } // view coordinates
    CIRect visibleRect() const; // view coordinates
    /// From widget to view coordinates and back. Device pixels and picture pixels are aligned as drawn.
    CIPoint toPicture(const QPointF& widget) const;
    QPointF toWidget(CIPoint picture) const;

    QString canvasValue() const override; // the zoom

    /// While it is held, the left button moves the picture.
    void setSpaceHeld(bool held);

    /// Scrolls so that the picture keeps its center when the visible part changes size.
    void visibleSizeChanged(const QSizeF& before);

signals:
    /// The bounds or the zoom have changed.
    void layoutChanged();

protected:
    /// Picture pixels; 0 x 0 for none.
    virtual CIPoint pictureSize() const = 0;
    virtual void zoomedByWheel(float newZoom) = 0;
    virtual void pinched(double delta) = 0; // of the zoom
    /// The bounds have changed.
    virtual void boundsResized() { }
    // The left button, view coordinates
    virtual void pressed(CIPoint) { }
    virtual void dragged(CIPoint) { }
    virtual void released(CIPoint) { }
    /// The mouse moves without a button, widget coordinates.
    virtual void hovered(const QPointF&) { }
    /// The pointer while the picture isn't moved about.
    virtual Qt::CursorShape pointer() const { return Qt::ArrowCursor; }

    CanvasScrollView* scrollView() const { return m_scrollView; }
    void updateCursor();
    /// To be called first when painting: where the widget's corner lies within a device pixel.
    void setSubpixel(const QPainter& painter);

    bool event(QEvent*) override;
    void wheelEvent(QWheelEvent*) override;
    void mousePressEvent(QMouseEvent*) override;
    void mouseMoveEvent(QMouseEvent*) override;
    void mouseReleaseEvent(QMouseEvent*) override;
    void keyPressEvent(QKeyEvent*) override;
    void keyReleaseEvent(QKeyEvent*) override;
    void focusOutEvent(QFocusEvent*) override;

    float viewTransformOffsetX = 0, viewTransformOffsetY = 0; // minus the origin of the bounds
    float prev_zoom = 1; // of the present layout: what scroll positions are measured in
    float zoom = 1;

private:
    void endPan();

    CanvasScrollView* m_scrollView;
    CIRect m_bounds;
    QPointF m_subpixel;
    std::optional<CIPoint> m_eventMouse; // of the event being handled, view coordinates
    double m_wheelRest = 0; // of wheels that turn in small steps
    bool m_spaceHeld = false, m_dragging = false;
    std::optional<QPointF> m_panFrom; // widget coordinates
    CIPoint m_panScroll; // scroll position when the pan began
};
