#include "effects2d/customEffImageView.h"

#include "effects2d/AnchoredEffect.h"
#include "platform/foundation/NotificationCenter.h"
#include "platform/foundation/ResourcePaths.h"
#include "platform/imageio/PictureReader.h"
#include "widgets/Checkerboard.h"
#include "widgets/DropFileTypes.h"
#include "widgets/PictureLayout.h"

#include <cmath>

#include <QKeyEvent>
#include <QPainter>

namespace {

/// Empty when it can't be read: the anchor is then without a marker.
QImage loadMarker()
{
    const auto bitmap = readPicture(pathForResource("16x16c", "tif").toStdString());
    if (!bitmap || bitmap->format() != CIFormat::RGBA8)
        return {};
    return QImage(reinterpret_cast<const uchar*>(bitmap->row(0)), bitmap->width(), bitmap->height(),
        qsizetype(bitmap->bytesPerRow()), QImage::Format_RGBA8888)
        .copy();
}

bool isArrow(int key)
{
    return key == Qt::Key_Left || key == Qt::Key_Right || key == Qt::Key_Up || key == Qt::Key_Down;
}

} // namespace

CustomEffectsScrollView::CustomEffectsScrollView(QWidget* parent)
    : CanvasScrollView(parent)
    , m_view(new customEffImageView(this))
{
    setCanvas(m_view);
    m_view->awakeFromNib();
}

customEffImageView::customEffImageView(CanvasScrollView* scrollView)
    : ControlledCanvas(scrollView, {firstDroppedFile, isAcceptableEffectPicture})
{
    setAccessibleName(tr("Generated picture"));
    setAccessibleDescription(tr("Arrow keys move the anchor of effects that have one; the wheel zooms."));
    setWhatsThis(tr("The picture as the effect makes it. Drag to place the effect's anchor, zoom with the wheel, move "
                    "the picture with the middle button or the space bar held."));
}

void customEffImageView::awakeFromNib()
{
    if (m_inited)
        return;
    m_inited = true;
    connect(
        &NotificationCenter::defaultCenter(), &NotificationCenter::UpdateCustomView, this, &customEffImageView::redraw);
    zoom = prev_zoom = 1;
    cursorImg = loadMarker();
}

void customEffImageView::setController(CustomViewMaster* master)
{
    controller = master;
    setMaster(master);
}

void customEffImageView::redraw() { update(); }

BaseEffect* customEffImageView::effect() const { return controller ? controller->getCurrentCustomEffect() : nullptr; }

bool customEffImageView::isMousing() const
{
    const BaseEffect* current = effect();
    return current && current->isMousing();
}

CIPoint customEffImageView::pictureSize() const
{
    if (BaseEffect* current = effect()) {
        const QSizeF size = current->drawImageSize();
        return {size.width(), size.height()};
    }
    return ControlledCanvas::pictureSize();
}

// --- drawing ---

/// The visible part of the picture: the screen's resolution, but never finer than the picture.
quartz::Part customEffImageView::visiblePart() const
{
    const double scale = std::min(double(zoom) * devicePixelRatioF(), 1.0);
    const CIPoint size = pictureSize();
    const CIPoint lowerLeft = toPicture({0, double(height())}), upperRight = toPicture({double(width()), 0});
    constexpr double tiny = 1e-6; // a corner on the grid stays there in spite of rounding errors
    const int left = int(std::floor(std::clamp(lowerLeft.x, 0.0, size.x) * scale + tiny));
    const int right = int(std::ceil(std::clamp(upperRight.x, 0.0, size.x) * scale - tiny));
    const int bottom = int(std::floor(std::clamp(lowerLeft.y, 0.0, size.y) * scale + tiny));
    const int top = int(std::ceil(std::clamp(upperRight.y, 0.0, size.y) * scale - tiny));
    return {scale, left, top, QSize(right - left, top - bottom)};
}

void customEffImageView::paintEvent(QPaintEvent*)
{
    // An effect without a picture has a canvas of its own, and a new picture may have another size.
    if (const CIPoint size = pictureSize(); size != m_laidOutSize) {
        m_laidOutSize = size;
        resizeViewBoundCenter(true, int(PictureCenter::None));
    }
    QPainter painter(this);
    setSubpixel(painter);
    painter.fillRect(rect(), surround());
    drawPicture(painter);
    if (isMousing() && (drawCursor || hasFocus()))
        drawMarker(painter);
    if (dragEnter)
        drawCGRect(painter, QRectF(rect()).adjusted(2, 2, -2, -2));
}

void customEffImageView::drawPicture(QPainter& painter)
{
    const quartz::Part part = visiblePart();
    if (!controller || part.size.isEmpty())
        return;
    QImage pixels;
    if (BaseEffect* current = effect()) {
        pixels = current->drawPart(part);
    } else {
        const CIImage picture = controller->backImage();
        if (m_plain.part != part || !m_plain.picture.isSameAs(picture))
            m_plain = {picture, part, BaseEffect::renderedPart(picture, part)};
        pixels = m_plain.pixels;
    }
    if (pixels.isNull())
        return;
    const double step = zoom / part.scale; // points per pixel of the part
    const QRectF place(toWidget({0, 0}) + QPointF(part.left, -part.top) * step, QSizeF(part.size) * step);
    if (pixels.hasAlphaChannel())
        fillCheckerboard(painter, place);
    painter.drawImage(place, pixels); // magnified pixels of the picture are shown as they are
}

/// The same size at every zoom.
void customEffImageView::drawMarker(QPainter& painter) const
{
    const QPointF anchor = toWidget(effect()->startPoint());
    painter.drawImage(anchor - QPointF(cursorImg.width() / 2.0, cursorImg.height() / 2.0), cursorImg);
}

// --- mouse and keys ---

void customEffImageView::enterEvent(QEnterEvent*) { mouseEntered(); }

void customEffImageView::leaveEvent(QEvent*) { mouseExited(); }

void customEffImageView::mouseEntered()
{
    if (!isMousing())
        return;
    drawCursor = true;
    updateCursor();
    redraw();
}

void customEffImageView::mouseExited()
{
    drawCursor = false;
    updateCursor();
    redraw();
}

void customEffImageView::pressed(CIPoint point)
{
    if (BaseEffect* current = effect()) {
        drawCursor = current->isMousing();
        updateCursor();
        current->mouseDown(point);
    }
    redraw();
}

void customEffImageView::dragged(CIPoint point)
{
    if (BaseEffect* current = effect())
        current->mouseDragged(point);
    redraw();
}

void customEffImageView::released(CIPoint point)
{
    if (BaseEffect* current = effect())
        current->mouseUp(point);
    redraw();
}

bool customEffImageView::event(QEvent* event)
{
    // Arrow keys belong to the anchor, even where a menu uses them.
    if (event->type() == QEvent::ShortcutOverride && isMousing() && isArrow(static_cast<QKeyEvent*>(event)->key())) {
        event->accept();
        return true;
    }
    return ControlledCanvas::event(event);
}

void customEffImageView::keyPressEvent(QKeyEvent* event)
{
    auto* anchored = dynamic_cast<AnchoredEffect*>(effect());
    if (!anchored || !isArrow(event->key())) {
        ControlledCanvas::keyPressEvent(event);
        return;
    }
    const double step = event->modifiers() & Qt::ShiftModifier ? 10 : 1; // picture pixels
    CIPoint to = anchored->startPoint();
    to.x += event->key() == Qt::Key_Right ? step : event->key() == Qt::Key_Left ? -step : 0;
    to.y += event->key() == Qt::Key_Up ? step : event->key() == Qt::Key_Down ? -step : 0;
    anchored->setPositionUNDO(to);
}
