#include "files/BeforeAfterView.h"

#include "files/PlainPicture.h"
#include "widgets/Checkerboard.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>

namespace {

constexpr int kGap = 2, kRadius = 6, kCaptionMargin = 8, kStep = 32; // points

/// Where a picture of `length` starts in a view of `room` so that `center` of it is in the middle; without an empty
/// edge if it is longer, in the middle if it is shorter. All in pixels.
double startOf(double length, double room, double center)
{
    return length <= room ? std::floor((room - length) / 2)
                          : std::round(std::clamp(room / 2 - center * length, room - length, 0.0));
}

} // namespace

BeforeAfterView::BeforeAfterView(QWidget* parent)
    : QWidget(parent)
{
    setFocusPolicy(Qt::StrongFocus);
    setCursor(Qt::OpenHandCursor);
    setMinimumSize(360, 200);
    setAccessibleName(tr("Before and after"));
    setToolTip(
        tr("A part of the picture as it is and as the file shows it, pixel by pixel. Drag it to see another part"));
}

void BeforeAfterView::setPictures(const CIBitmap& before, const CIBitmap& after)
{
    m_before = before;
    m_after = after;
    update();
}

QRect BeforeAfterView::half(int index) const
{
    const int width = (this->width() - kGap) / 2;
    return {index * (width + kGap), 0, width, height()};
}

void BeforeAfterView::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    QPainterPath rounded;
    rounded.addRoundedRect(rect(), kRadius, kRadius);
    painter.setClipPath(rounded);
    painter.fillRect(rect(), palette().window());
    paintHalf(painter, 0, m_before, tr("Before"));
    paintHalf(painter, 1, m_after, tr("After"));
    if (hasFocus()) {
        painter.setPen(QPen(palette().highlight(), 2));
        painter.drawRoundedRect(QRectF(rect()).adjusted(1, 1, -1, -1), kRadius, kRadius);
    }
}

void BeforeAfterView::paintHalf(QPainter& painter, int index, const CIBitmap& bitmap, const QString& caption) const
{
    const QRect place = half(index);
    painter.save();
    painter.setClipRect(place, Qt::IntersectClip);
    painter.fillRect(place, palette().mid());
    if (!bitmap.isNull()) {
        const double ratio = devicePixelRatioF();
        const QPointF start(startOf(bitmap.width(), place.width() * ratio, m_center.x()),
            startOf(bitmap.height(), place.height() * ratio, m_center.y()));
        QImage image = pictureOver(bitmap);
        image.setDevicePixelRatio(ratio);
        const QPointF corner = place.topLeft() + start / ratio;
        if (bitmap.alpha() != CIAlpha::Opaque) {
            const QRectF shown(corner, QSizeF(bitmap.width(), bitmap.height()) / ratio);
            fillCheckerboard(painter, shown);
        }
        painter.drawImage(corner, image);
    }
    const QRect text = painter.fontMetrics().boundingRect(caption).adjusted(-8, -3, 8, 3);
    const QRect pill(place.topLeft() + QPoint(kCaptionMargin, kCaptionMargin), text.size());
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(0, 0, 0, 150));
    painter.drawRoundedRect(pill, pill.height() / 2.0, pill.height() / 2.0);
    painter.setPen(Qt::white);
    painter.drawText(pill, Qt::AlignCenter, caption);
    painter.restore();
}

void BeforeAfterView::moveBy(QPointF points)
{
    if (m_before.isNull())
        return;
    const auto moved = [&](double center, double by, double length, double room) {
        const double edge = std::min(0.5, room / 2 / length); // nearer to the border nothing changes
        return std::clamp(center - by / length, edge, 1 - edge);
    };
    const double ratio = devicePixelRatioF();
    m_center = {moved(m_center.x(), points.x() * ratio, m_before.width(), half(0).width() * ratio),
        moved(m_center.y(), points.y() * ratio, m_before.height(), half(0).height() * ratio)};
    update();
}

void BeforeAfterView::mousePressEvent(QMouseEvent* event)
{
    m_dragged = event->position().toPoint();
    setCursor(Qt::ClosedHandCursor);
}

void BeforeAfterView::mouseMoveEvent(QMouseEvent* event)
{
    const QPoint here = event->position().toPoint();
    moveBy(here - m_dragged);
    m_dragged = here;
}

void BeforeAfterView::mouseReleaseEvent(QMouseEvent*) { setCursor(Qt::OpenHandCursor); }

void BeforeAfterView::wheelEvent(QWheelEvent* event)
{
    moveBy(event->pixelDelta().isNull() ? event->angleDelta() / 4 : event->pixelDelta());
}

void BeforeAfterView::keyPressEvent(QKeyEvent* event)
{
    switch (event->key()) {
    case Qt::Key_Left:
        return moveBy(QPointF(kStep, 0));
    case Qt::Key_Right:
        return moveBy(QPointF(-kStep, 0));
    case Qt::Key_Up:
        return moveBy(QPointF(0, kStep));
    case Qt::Key_Down:
        return moveBy(QPointF(0, -kStep));
    default:
        QWidget::keyPressEvent(event);
    }
}
