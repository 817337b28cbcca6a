#include "controls/crop/PictureCanvas.h"

#include "controls/picture/PictureConversion.h"
#include "platform/foundation/Appearance.h"
#include "widgets/Checkerboard.h"

#include <algorithm>
#include <cmath>

#include <QPainter>
#include <QPainterPath>

namespace {

constexpr int kMargin = 32; // points around the picture, so that its corners can be taken hold of
constexpr double kLargestScale = 8; // points per pixel: small pictures needn't fill the window
constexpr int kShade = 175; // of 255

} // namespace

PictureCanvas::PictureCanvas(const CIImage& picture, QWidget* parent)
    : QWidget(parent)
    , m_picture(picture.transformed(CIAffineTransform::translation(-picture.extent().x, -picture.extent().y)))
    , m_size{picture.extent().width, picture.extent().height}
{
    setMinimumSize(200, 150);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    connect(&Appearance::shared(), &Appearance::changed, this, qOverload<>(&QWidget::update));
}

double PictureCanvas::scale() const
{
    const CIPoint shown = shownSize();
    const double room = std::max(width() - 2 * kMargin, 1), upRoom = std::max(height() - 2 * kMargin, 1);
    return std::min({room / shown.x, upRoom / shown.y, kLargestScale});
}

QPointF PictureCanvas::toWidget(CIPoint picture) const
{
    const double s = scale();
    return {width() / 2.0 + (picture.x - m_size.x / 2) * s, height() / 2.0 - (picture.y - m_size.y / 2) * s};
}

CIPoint PictureCanvas::toPicture(const QPointF& widget) const
{
    const double s = scale();
    return {(widget.x() - width() / 2.0) / s + m_size.x / 2, (height() / 2.0 - widget.y()) / s + m_size.y / 2};
}

QRectF PictureCanvas::frameOf(const CIRect& picture) const
{
    return {toWidget(CIPoint{picture.left(), picture.top()}), toWidget(CIPoint{picture.right(), picture.bottom()})};
}

void PictureCanvas::drawPicture(QPainter& painter)
{
    const double wanted = std::min(scale() * devicePixelRatioF(), 1.0);
    if (wanted != m_previewScale) {
        m_previewScale = wanted;
        m_preview = pictureOfImage(m_picture, {0, 0, m_size.x, m_size.y}, wanted);
    }
    const double s = scale();
    const QRectF place(-m_size.x / 2 * s, -m_size.y / 2 * s, m_size.x * s, m_size.y * s);
    fillCheckerboard(painter, place);
    painter.setRenderHint(QPainter::SmoothPixmapTransform, m_previewScale < 1 || !painter.transform().isIdentity());
    // Its lowest row and its first column are whole, the others may stick out.
    const QSizeF size = QSizeF(m_preview.size()) * s / m_previewScale;
    painter.drawImage(QRectF(QPointF(place.left(), place.bottom() - size.height()), size), m_preview);
}

void PictureCanvas::shadeAround(QPainter& painter, const QRectF& kept) const
{
    QPainterPath outside;
    outside.addRect(rect());
    outside.addRect(kept);
    QColor shade = Appearance::shared().look().surround;
    shade.setAlpha(kShade);
    painter.fillPath(outside, shade);
}

void drawGrid(QPainter& painter, const QRectF& frame, int columns, int rows)
{
    const auto draw = [&](const QColor& color, double shift) {
        painter.setPen(QPen(color, 1));
        for (int i = 1; i < columns; ++i) {
            const double x = std::round(frame.left() + frame.width() * i / columns) + 0.5 + shift;
            painter.drawLine(QPointF(x, frame.top()), QPointF(x, frame.bottom()));
        }
        for (int i = 1; i < rows; ++i) {
            const double y = std::round(frame.top() + frame.height() * i / rows) + 0.5 + shift;
            painter.drawLine(QPointF(frame.left(), y), QPointF(frame.right(), y));
        }
    };
    draw(QColor(0, 0, 0, 60), 1); // a shadow, for bright pictures
    draw(QColor(255, 255, 255, 130), 0);
}
