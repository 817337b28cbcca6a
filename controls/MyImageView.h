// The zoomable picture with its control points.
#pragma once

#include "controls/ControlPoints.h"
#include "controls/FrameRenderer.h"
#include "controls/ImageViewMaster.h"
#include "controls/PictureLayout.h"

#include <QPointer>
#include <QWidget>

class PictureScrollView;

/// Shows the controller's picture, lets points be dragged on it, and takes a dropped picture file.
///
/// The widget is the viewport of a PictureScrollView, so it is as large as the visible part and draws only that.
/// Its own coordinates ("view coordinates": `bounds`, points of parameters) are picture pixels, y up.
class MyImageView : public QWidget {
    Q_OBJECT
public:
    explicit MyImageView(PictureScrollView* scrollView);
    ~MyImageView() override;

    void setController(ImageViewMaster* master);
    /// Renders with a context shared with others; before the first frame.
    void setContext(std::shared_ptr<CIContext> context);

    float getZoom() const { return zoom; }
    /// Clamps to 0.1 ... 10 and lays the view out anew.
    void setZoom(float newZoom);
    /// Lays the view out for the size of window and picture; see layOutPicture. `center` is 0 to 3.
    void resizeViewBoundCenter(bool force, int center);
    /// The picture has changed: asks the controller for it again when next drawn. (`update` only repaints.)
    void setNeedsDisplay();

    CIRect bounds() const { return m_bounds; } // view coordinates
    CIRect visibleRect() const; // view coordinates
    /// From widget to view coordinates and back. Device pixels and picture pixels are aligned as drawn.
    CIPoint toPicture(const QPointF& widget) const;
    QPointF toWidget(CIPoint picture) const;

    /// Waits until the picture is rendered in full and shown; for tests and screenshots.
    bool waitForFrame(int milliseconds = 10000);

    /// Scrolls so that the picture keeps its center when the visible part changes size.
    void visibleSizeChanged(const QSizeF& before);

    std::uint32_t grabMode() const { return parmMode; }
    const std::string& grabKey() const { return parmKey; }
    bool isDisplayingPoints() const { return displayingPoints; }

signals:
    /// The bounds or the zoom have changed.
    void layoutChanged();

protected:
    bool event(QEvent*) override;
    void paintEvent(QPaintEvent*) override;
    void wheelEvent(QWheelEvent*) override;
    void enterEvent(QEnterEvent*) override;
    void leaveEvent(QEvent*) override;
    void mousePressEvent(QMouseEvent*) override;
    void mouseMoveEvent(QMouseEvent*) override;
    void mouseReleaseEvent(QMouseEvent*) override;
    void keyPressEvent(QKeyEvent*) override;
    void keyReleaseEvent(QKeyEvent*) override;
    void focusOutEvent(QFocusEvent*) override;
    bool focusNextPrevChild(bool next) override; // Tab goes from point to point
    void contextMenuEvent(QContextMenuEvent*) override;
    void dragEnterEvent(QDragEnterEvent*) override;
    void dragLeaveEvent(QDragLeaveEvent*) override;
    void dropEvent(QDropEvent*) override;

private:
    struct Private;

    void refreshFrame();
    std::optional<FrameRequest> frameRequest() const;
    void drawFrame(QPainter&) const;
    void drawPoints(QPainter&) const;
    void mouseContentMenu(const QPoint& globalPosition);
    void mouseEntered();
    void mouseExited();
    void hover(const QPointF& position);
    void dragGrabbedPoint(CIPoint to);
    void selectPoint(std::optional<std::size_t> index);
    bool moveSelectedPoint(int key, bool far);
    bool isPanStart(const QMouseEvent&) const;
    void startPan(const QPointF& position);
    void endPan();
    void updateCursor();
    void showDropHighlight(bool shown);

    ImageViewMaster* controller = nullptr;
    bool movingNow = false;
    bool displayingPoints = false;
    float viewTransformOffsetX = 0, viewTransformOffsetY = 0; // minus the origin of the bounds
    std::int32_t parmIndex = -1; // 0 while a point is grabbed
    std::string parmKey;
    std::uint32_t parmMode = ParmMode::kNothing;
    float prev_zoom = 1; // of the present layout: what scroll positions are measured in
    float zoom = 1;
    bool dragEnter = false;

    CIRect m_bounds;
    std::unique_ptr<Private> d;
};
