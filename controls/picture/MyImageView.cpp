#include "controls/picture/MyImageView.h"

#include "controls/picture/MyImageViewPrivate.h"
#include "controls/picture/PictureScrollView.h"
#include "controls/picture/PointMark.h"
#include "widgets/Checkerboard.h"
#include "widgets/DropFileTypes.h"
#include "widgets/rows/ColorRow.h"

#include <cmath>

#include <QApplication>
#include <QPainter>

namespace {

constexpr int kPaintPatience = 12; // ms that a repaint waits for a frame that is likely to be ready by then

QColor opaqueColor(const CIFilter& filter, const char* key)
{
    QColor color = colorOf(filter.valueForKey(key).toColor());
    color.setAlpha(255); // a color that isn't seen is one all the same
    return color;
}

/// Grid steps per picture pixel: the screen's resolution, but never finer than the picture.
double gridScale(double pixelsPerPicturePixel) { return std::min(pixelsPerPicturePixel, 1.0); }

} // namespace

MyImageView::MyImageView(PictureScrollView* scrollView)
    : ControlledCanvas(scrollView, {onlyDroppedFile, isAcceptablePictureFile})
    , d(new Private)
{
    setAccessibleName(tr("Picture"));
    setAccessibleDescription(
        tr("Tab goes from point to point of the filter, arrow keys move the point; the wheel zooms."));
    setWhatsThis(tr("The picture as the filter shows it. Drag the points of the filter, zoom with the wheel, "
                    "move the picture with the middle button or the space bar held."));
    d->divider = new SplitDivider(this);
    connect(d->divider, &SplitDivider::moved, this, qOverload<>(&QWidget::update));
    connect(this, &ZoomedCanvas::layoutChanged, d->divider, &SplitDivider::followView);
}

MyImageView::~MyImageView() { delete d->dropHighlight; }

void MyImageView::setController(ImageViewMaster* master)
{
    controller = master;
    setMaster(master);
    setNeedsDisplay();
}

void MyImageView::setContext(std::shared_ptr<CIContext> context)
{
    d->context = std::move(context);
    d->result.renderer.reset();
    d->original.renderer.reset();
}

void MyImageView::setNeedsDisplay()
{
    d->result.changed = d->original.changed = true;
    d->areLayersKnown = false;
    update();
}

void MyImageView::setShowsOriginal(bool shows)
{
    d->showsOriginal = shows;
    update();
    emit frameShown();
}

bool MyImageView::showsOriginal() const { return d->showsOriginal; }

void MyImageView::setSplit(bool split)
{
    d->divider->setTakenAtLine(!controller || !controller->isControlsPresent());
    if (!split && window()->focusWidget() == d->divider)
        setFocus();
    d->divider->setVisible(split);
    update();
}

bool MyImageView::isSplit() const { return !d->divider->isHidden(); }

// --- layout ---

void MyImageView::boundsResized() { d->result.changed = true; } // some results fill the bounds

// --- drawing ---

/// The visible part of the picture, in whole steps of the grid that is rendered; nothing when none of it is seen.
std::optional<FrameRequest> MyImageView::frameRequest(const CIImage& picture) const
{
    if (picture.isNull())
        return {};
    const double pixelsPerPicturePixel = double(zoom) * devicePixelRatioF();
    const double scale = gridScale(pixelsPerPicturePixel);
    const CIPoint lowerLeft = toPicture({0, double(height())}), upperRight = toPicture({double(width()), 0});
    // A corner on the grid stays there in spite of rounding errors.
    constexpr double tiny = 1e-6;
    int left = int(std::floor(lowerLeft.x * scale + tiny)), right = int(std::ceil(upperRight.x * scale - tiny));
    int bottom = int(std::floor(lowerLeft.y * scale + tiny)), top = int(std::ceil(upperRight.y * scale - tiny));
    const CIRect extent = picture.extent();
    const auto limited = [](double v) { return int(std::clamp(v, -1e9, 1e9)); };
    left = std::max(left, limited(std::floor(extent.left() * scale)));
    bottom = std::max(bottom, limited(std::floor(extent.bottom() * scale)));
    right = std::min(right, limited(std::ceil(extent.right() * scale)));
    top = std::min(top, limited(std::ceil(extent.top() * scale)));
    if (right <= left || top <= bottom)
        return {};
    return FrameRequest{picture, scale, left, top, {right - left, top - bottom}};
}

void MyImageView::refreshFrames()
{
    refresh(d->shown());
    if (d->isSplit())
        refresh(d->original);
}

/// Brings the frame up to date, as far as that is quickly done.
void MyImageView::refresh(Layer& layer)
{
    if (std::exchange(layer.changed, false)) {
        layer.picture = {};
        if (controller)
            layer.picture = &layer == &d->original ? controller->comparedImage() : controller->coreImageResult(false);
    }
    const std::optional<FrameRequest> request = frameRequest(layer.picture);
    if (!request) {
        if (layer.renderer)
            layer.renderer->forget();
        if (std::exchange(layer.frame, std::nullopt))
            emit frameShown();
        return;
    }
    if (!layer.renderer) {
        if (!d->context)
            d->context = std::make_shared<CIContext>();
        layer.renderer = std::make_unique<FrameRenderer>(d->context);
        connect(layer.renderer.get(), &FrameRenderer::frameReady, this, qOverload<>(&QWidget::update));
    }
    layer.renderer->request(*request);
    const bool isShown = layer.frame && layer.frame->request == *request;
    if (!isShown && layer.renderer->isQuick(kPaintPatience))
        layer.renderer->waitForAnyFrame(kPaintPatience);
    if (std::optional<Frame> newer = layer.renderer->takeFrame()) {
        layer.frame = std::move(newer);
        emit frameShown();
    }
}

QImage MyImageView::shownFrame() const
{
    const std::optional<Frame>& frame = d->shown().frame;
    return frame ? frame->pixels : QImage();
}

bool MyImageView::waitForFrame(int milliseconds)
{
    refreshFrames();
    const auto finish = [&](const Layer& layer) {
        return !frameRequest(layer.picture) || layer.renderer->waitForFrame(milliseconds);
    };
    const bool finished = finish(d->shown()) && (!d->isSplit() || finish(d->original));
    repaint();
    return finished;
}

void MyImageView::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    setSubpixel(painter);
    painter.fillRect(rect(), surround());
    refreshFrames();
    drawFrames(painter);
    const bool byKeyboard = d->selected && hasFocus();
    if ((displayingPoints || byKeyboard) && !d->showsOriginal && !QApplication::activeModalWidget())
        drawPoints(painter);
}

void MyImageView::drawFrames(QPainter& painter) const
{
    if (d->isSplit()) {
        const int x = d->divider->lineX();
        painter.save();
        painter.setClipRect(QRect(0, 0, x, height()));
        drawFrame(painter, d->original);
        painter.setClipRect(QRect(x, 0, width() - x, height()));
        drawFrame(painter, d->result);
        painter.restore();
    } else {
        drawFrame(painter, d->shown());
    }
    if (isSplit())
        d->divider->drawLine(painter);
}

void MyImageView::drawFrame(QPainter& painter, const Layer& layer) const
{
    if (!layer.frame || layer.frame->pixels.isNull() || layer.picture.isNull())
        return;
    const Frame& frame = *layer.frame;
    const double ratio = devicePixelRatioF();
    const double step = double(zoom) * ratio / frame.scale(); // device pixels per pixel of the frame
    const QImage& pixels = frame.pixels;

    fillCheckerboard(painter, placeOfPixels(layer.picture));
    painter.save();
    painter.translate(toWidget({0, 0}));
    painter.scale(1 / ratio, 1 / ratio);
    if (std::abs(step - 1) < 1e-6) {
        painter.drawImage(QPoint(frame.left, -frame.top), pixels);
    } else {
        // Magnified pixels of the picture are shown as they are; a frame of another resolution is only a stand-in.
        const bool standIn = frame.divisor > 1 || frame.scale() < 1;
        painter.setRenderHint(QPainter::SmoothPixmapTransform, standIn);
        painter.drawImage(
            QRectF(frame.left * step, -frame.top * step, pixels.width() * step, pixels.height() * step), pixels);
    }
    painter.restore();
}

/// Where the view's whole device pixels show the picture: at its edges they show the surround as well.
QRectF MyImageView::placeOfPixels(const CIImage& picture) const
{
    const CIRect seen = picture.extent().intersected(visibleRect());
    const double ratio = devicePixelRatioF();
    const QPointF topLeft = toWidget({seen.left(), seen.top()}) * ratio;
    const QPointF bottomRight = toWidget({seen.right(), seen.bottom()}) * ratio;
    constexpr double tiny = 1e-3;
    return {QPointF(std::ceil(topLeft.x() - tiny), std::ceil(topLeft.y() - tiny)) / ratio,
        QPointF(std::floor(bottomRight.x() + tiny), std::floor(bottomRight.y() + tiny)) / ratio};
}

/// The middle of the pixel.
QPointF MyImageView::markPlace(CIPoint point) const
{
    return toWidget({std::floor(point.x) + 0.5, std::floor(point.y) + 0.5});
}

/// A line in white beside one in black, seen on any picture.
void MyImageView::drawLayerFrames(QPainter& painter) const
{
    for (const FreeLayer& layer : layers()) {
        const CIRect frame = layer.frame();
        const QPointF topLeft = toWidget({frame.left(), frame.top()});
        const QPointF bottomRight = toWidget({frame.right(), frame.bottom()});
        const QRectF line(QPointF(std::round(topLeft.x()), std::round(topLeft.y())),
            QPointF(std::round(bottomRight.x()), std::round(bottomRight.y())));
        painter.setBrush(Qt::NoBrush);
        painter.setPen(QPen(QColor(0, 0, 0, 110), 1));
        painter.drawRect(line.adjusted(-0.5, -0.5, 0.5, 0.5));
        painter.setPen(QPen(Qt::white, 1));
        painter.drawRect(line.adjusted(0.5, 0.5, -0.5, -0.5));
    }
}

void MyImageView::drawPoints(QPainter& painter) const
{
    drawLayerFrames(painter);
    const std::vector<ControlPoint> points = this->points();
    const std::shared_ptr<CIFilter> filter = controller ? controller->getCurrentFilter() : nullptr;
    if (filter && isLinearGradient(*filter))
        drawGradientLine(painter, markPlace(points[0].position), markPlace(points[1].position),
            opaqueColor(*filter, "inputColor0"), opaqueColor(*filter, "inputColor1"));
    for (std::size_t i = 0; i < points.size(); ++i) {
        const ControlPoint& point = points[i];
        const QPointF where = markPlace(point.position);
        const bool grabbed = movingNow && point.key == parmKey && point.mode == parmMode;
        const bool selected = hasFocus() && d->selected == i;
        const bool hovered = selected || (displayingPoints && d->hovered == i);
        drawPointMark(painter, where, zoom,
            grabbed       ? PointEmphasis::Grabbed
                : hovered ? PointEmphasis::Hovered
                          : PointEmphasis::None);
        if (selected)
            drawPointLabel(painter, where, QString::fromStdString(point.label));
    }
}
