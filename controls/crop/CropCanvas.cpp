#include "controls/crop/CropCanvas.h"

#include "controls/crop/CropGeometry.h"
#include "platform/foundation/Appearance.h"

#include <algorithm>
#include <cmath>

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>

namespace {

constexpr double kReach = 10; // points from an edge that still take hold of it
constexpr double kClick = 4; // points; a shorter way draws no new frame
constexpr double kHandle = 18; // points, the length of a corner's legs

} // namespace

CropCanvas::CropCanvas(const CIImage& picture, QWidget* parent)
    : PictureCanvas(picture, parent)
    , m_crop(largestCrop(pictureSize(), 0))
{
    setObjectName("cropCanvas");
    setAccessibleName(tr("What is kept of the picture"));
    setAccessibleDescription(
        tr("Arrow keys move the frame, with Ctrl its upper right corner, with Shift by ten pixels."));
    setToolTip(tr("Drag the frame, its corners or its edges"));
}

void CropCanvas::setCrop(const CIRect& crop)
{
    if (crop == m_crop)
        return;
    m_crop = crop;
    update();
    emit cropChanged();
}

void CropCanvas::setProportions(double proportions)
{
    m_proportions = proportions;
    if (proportions > 0)
        setCrop(largestCrop(pictureSize(), proportions));
    update();
}

// --- drawing ---

void CropCanvas::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.save();
    painter.translate(rect().toRectF().center());
    drawPicture(painter);
    painter.restore();
    const QRectF exact = frameOf(m_crop);
    const QRectF frame(QPointF(std::round(exact.left()), std::round(exact.top())),
        QPointF(std::round(exact.right()), std::round(exact.bottom())));
    shadeAround(painter, frame);
    drawGrid(painter, frame, 3, 3);
    painter.setPen(QPen(QColor(0, 0, 0, 90), 1));
    painter.drawRect(frame.adjusted(-1.5, -1.5, 1.5, 1.5));
    painter.setPen(QPen(Qt::white, 1));
    painter.drawRect(frame.adjusted(-0.5, -0.5, 0.5, 0.5));
    drawHandles(painter, frame);
}

/// White legs around each corner and a bar on each edge that can be dragged, with a dark rim; in the accent's color
/// while keys go here.
void CropCanvas::drawHandles(QPainter& painter, const QRectF& frame) const
{
    painter.setRenderHint(QPainter::Antialiasing);
    const double length = std::min({kHandle, frame.width() / 3, frame.height() / 3});
    QPainterPath handles;
    for (const int side : {-1, 1})
        for (const int end : {-1, 1}) {
            const QPointF corner(
                side < 0 ? frame.left() - 2 : frame.right() + 2, end < 0 ? frame.top() - 2 : frame.bottom() + 2);
            handles.moveTo(corner - QPointF(side * length, 0));
            handles.lineTo(corner);
            handles.lineTo(corner - QPointF(0, end * length));
        }
    if (length >= kHandle) {
        const QPointF middle = frame.center();
        for (const double x : {frame.left() - 2, frame.right() + 2}) {
            handles.moveTo(x, middle.y() - length / 2);
            handles.lineTo(x, middle.y() + length / 2);
        }
        for (const double y : {frame.top() - 2, frame.bottom() + 2}) {
            handles.moveTo(middle.x() - length / 2, y);
            handles.lineTo(middle.x() + length / 2, y);
        }
    }
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(QColor(0, 0, 0, 120), 6, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
    painter.drawPath(handles);
    const QColor color = hasFocus() ? Appearance::shared().look().accent : QColor(Qt::white);
    painter.setPen(QPen(color, 4, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
    painter.drawPath(handles);
}

// --- the mouse ---

CropCanvas::Grab CropCanvas::grabAt(const QPointF& place) const
{
    const QRectF frame = frameOf(m_crop);
    const auto nearest = [](double at, double low, double high) { // which of both ends is within reach
        if (std::min(std::abs(at - low), std::abs(at - high)) > kReach)
            return 0;
        return std::abs(at - low) < std::abs(at - high) ? -1 : 1;
    };
    if (!frame.adjusted(-kReach, -kReach, kReach, kReach).contains(place))
        return {.isNew = true};
    Grab grab{nearest(place.x(), frame.left(), frame.right()), nearest(place.y(), frame.bottom(), frame.top())};
    const bool isWhole = m_crop.width == pictureSize().x && m_crop.height == pictureSize().y; // it can't be moved
    grab.isNew = isWhole && !grab.side && !grab.end;
    return grab;
}

Qt::CursorShape CropCanvas::pointerFor(const Grab& grab) const
{
    if (grab.isNew)
        return Qt::CrossCursor;
    if (grab.side && grab.end)
        return grab.side == grab.end ? Qt::SizeBDiagCursor : Qt::SizeFDiagCursor;
    if (grab.side || grab.end)
        return grab.side ? Qt::SizeHorCursor : Qt::SizeVerCursor;
    return Qt::SizeAllCursor;
}

void CropCanvas::mousePressEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton)
        return;
    m_grab = grabAt(event->position());
    m_pressed = event->position();
    m_cropWhenPressed = m_crop;
}

void CropCanvas::mouseMoveEvent(QMouseEvent* event)
{
    if (m_grab)
        drag(event->position());
    else
        setCursor(pointerFor(grabAt(event->position())));
}

void CropCanvas::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton)
        m_grab.reset();
}

void CropCanvas::drag(const QPointF& place)
{
    const CIPoint from = toPicture(m_pressed), to = toPicture(place), by{to.x - from.x, to.y - from.y};
    const CIRect& was = m_cropWhenPressed;
    if (m_grab->isNew) {
        if (QLineF(m_pressed, place).length() >= kClick)
            setCrop(cropBetween(from, to, m_proportions, pictureSize()));
        return;
    }
    if (!m_grab->side && !m_grab->end)
        return setCrop(movedCrop(was, by, pictureSize()));
    if (!m_grab->side || !m_grab->end)
        return setCrop(cropToEdge(was, m_grab->side, m_grab->end, by, m_proportions, pictureSize()));
    // The far corner stays.
    const CIPoint fixed{m_grab->side < 0 ? was.right() : was.left(), m_grab->end < 0 ? was.top() : was.bottom()};
    const CIPoint moved{
        (m_grab->side < 0 ? was.left() : was.right()) + by.x, (m_grab->end < 0 ? was.bottom() : was.top()) + by.y};
    setCrop(cropBetween(fixed, moved, m_proportions, pictureSize()));
}

// --- keys ---

void CropCanvas::keyPressEvent(QKeyEvent* event)
{
    const double step = event->modifiers() & Qt::ShiftModifier ? 10 : 1; // picture pixels
    CIPoint by;
    switch (event->key()) {
    case Qt::Key_Left:
        by.x = -step;
        break;
    case Qt::Key_Right:
        by.x = step;
        break;
    case Qt::Key_Down:
        by.y = -step;
        break;
    case Qt::Key_Up:
        by.y = step;
        break;
    default:
        return QWidget::keyPressEvent(event);
    }
    if (!(event->modifiers() & Qt::ControlModifier))
        return setCrop(movedCrop(m_crop, by, pictureSize()));
    if (m_proportions > 0) // both sides follow the key's direction
        by = by.x != 0 ? CIPoint{by.x, by.x / m_proportions} : CIPoint{by.y * m_proportions, by.y};
    setCrop(cropBetween({m_crop.left(), m_crop.bottom()},
        {std::max(m_crop.right() + by.x, m_crop.left() + 1), std::max(m_crop.top() + by.y, m_crop.bottom() + 1)},
        m_proportions, pictureSize()));
}
