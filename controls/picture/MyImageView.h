// The zoomable picture with its control points.
#pragma once

#include "controls/picture/ControlPoints.h"
#include "controls/picture/FrameRenderer.h"
#include "controls/picture/ImageViewMaster.h"
#include "widgets/ControlledCanvas.h"

#include <functional>
#include <optional>

#include <QPointer>

class PictureScrollView;
struct FreeLayer;

/// Shows the controller's picture, lets points be dragged on it, and takes a dropped picture file.
///
/// Points of parameters are view coordinates: picture pixels, y up.
class MyImageView : public ControlledCanvas {
    Q_OBJECT
public:
    explicit MyImageView(PictureScrollView* scrollView);
    ~MyImageView() override;

    void setController(ImageViewMaster* master);
    /// Renders with a context shared with others; before the first frame.
    void setContext(std::shared_ptr<CIContext> context);

    /// The picture has changed: asks the controller for it again when next drawn. (`update` only repaints.)
    void setNeedsDisplay();

    /// Shows what the filter's result is compared with in its place, without the filter's points.
    void setShowsOriginal(bool shows);
    bool showsOriginal() const;

    /// Shows what the result is compared with left of a divider that can be moved, and the filter's result right of it.
    void setSplit(bool split);
    bool isSplit() const;

    /// What is on the screen: the rendered part of the result, or of the source picture while that is shown. ARGB32_
    /// Premultiplied; null when there is none.
    QImage shownFrame() const;

    /// The next click on the picture is told by its place and grabs no point. Nothing is told when it is beside the
    /// picture, the user presses Escape or goes elsewhere, or when another place is asked for, or null.
    void pickPlace(std::function<void(std::optional<CIPoint>)> take);
    bool isPickingPlace() const;

    /// Waits until the picture is rendered in full and shown; for tests and screenshots.
    bool waitForFrame(int milliseconds = 10000);

    std::uint32_t grabMode() const { return parmMode; }
    const std::string& grabKey() const { return parmKey; }
    bool isDisplayingPoints() const { return displayingPoints; }
    QList<CanvasPoint> canvasPoints() const override;

signals:
    /// The user drags the picture itself: from where there are no points, or with Ctrl held.
    void pictureDragged();
    /// There is another `shownFrame`, or none any more.
    void frameShown();

protected:
    void boundsResized() override;
    void pressed(CIPoint point) override;
    void dragged(CIPoint point) override;
    void released(CIPoint point) override;
    void hovered(const QPointF& position) override { hover(position); }
    Qt::CursorShape pointer() const override;

    bool event(QEvent*) override;
    void paintEvent(QPaintEvent*) override;
    void enterEvent(QEnterEvent*) override;
    void leaveEvent(QEvent*) override;
    void hideEvent(QHideEvent*) override;
    void keyPressEvent(QKeyEvent*) override;
    void keyReleaseEvent(QKeyEvent*) override;
    void focusOutEvent(QFocusEvent*) override;
    bool focusNextPrevChild(bool next) override; // Tab goes from point to point
    void draggedOver(bool over) override;

private:
    struct Private;
    struct Layer;

    void refreshFrames();
    void refresh(Layer& layer);
    std::optional<FrameRequest> frameRequest(const CIImage& picture) const;
    void drawFrames(QPainter&) const;
    void drawFrame(QPainter&, const Layer& layer) const;
    QRectF placeOfPixels(const CIImage& picture) const;
    void drawPoints(QPainter&) const;
    void mouseEntered();
    void mouseExited();
    void hover(const QPointF& position);
    const std::vector<FreeLayer>& layers() const;
    std::vector<ControlPoint> points() const; // of the filter's inputs, then of its layers
    std::optional<std::size_t> pointAt(const std::vector<ControlPoint>& points, CIPoint place) const;
    void setPoint(const CIFilter& filter, const std::string& key, std::uint32_t mode, CIPoint to);
    QPointF markPlace(CIPoint point) const;
    void drawLayerFrames(QPainter&) const;
    void dragGrabbedPoint(CIPoint to);
    void beginChange();
    void endChange();
    void endPicking(std::optional<CIPoint> place);
    void selectPoint(std::optional<std::size_t> index);
    bool moveSelectedPoint(int key, bool far);

    ImageViewMaster* controller = nullptr;
    bool movingNow = false;
    bool displayingPoints = false;
    std::int32_t parmIndex = -1; // 0 while a point is grabbed
    std::string parmKey;
    std::uint32_t parmMode = ParmMode::kNothing;

    std::unique_ptr<Private> d;
};
