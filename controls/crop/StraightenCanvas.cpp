#include "controls/crop/StraightenCanvas.h"

#include "controls/crop/CropGeometry.h"
#include "platform/foundation/Appearance.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <utility>

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

namespace {

constexpr double kDegree = std::numbers::pi / 180;
constexpr int kGridLines = 12; // along the longer side
constexpr double kShortestLine = 12; // points; less is a click

} // namespace

StraightenCanvas::StraightenCanvas(const CIImage& picture, QWidget* parent)
    : PictureCanvas(picture, parent)
{
    setObjectName("straightenCanvas");
    setCursor(Qt::CrossCursor);
    setAccessibleName(tr("The turned picture"));
    setAccessibleDescription(tr("Arrow keys turn it by a tenth of a degree, with Shift by a whole one."));
    setToolTip(tr("Drag along the horizon, or along what is to be upright"));
}

void StraightenCanvas::setAngle(double angle, bool fills)
{
    m_angle = angle;
    m_fills = fills;
    update();
}

/// Corners that are cut off need no room.
CIPoint StraightenCanvas::shownSize() const
{
    return m_fills ? pictureSize() : straightenedSize(pictureSize(), m_angle, false);
}

void StraightenCanvas::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QPointF middle = rect().toRectF().center();
    painter.save();
    painter.translate(middle);
    painter.rotate(-m_angle / kDegree);
    drawPicture(painter);
    painter.restore();

    const CIPoint size = straightenedSize(pictureSize(), m_angle, m_fills);
    const double width = size.x * scale(), height = size.y * scale();
    const QRectF frame(
        std::round(middle.x() - width / 2), std::round(middle.y() - height / 2), std::round(width), std::round(height));
    if (m_fills)
        shadeAround(painter, frame);
    const double square = std::max(width, height) / kGridLines;
    painter.setRenderHint(QPainter::Antialiasing, false);
    drawGrid(
        painter, frame, std::max(2, int(std::lround(width / square))), std::max(2, int(std::lround(height / square))));
    painter.setPen(QPen(QColor(0, 0, 0, 90), 1));
    painter.drawRect(frame.adjusted(-2, -2, 1, 1));
    painter.setPen(QPen(Qt::white, 1));
    painter.drawRect(frame.adjusted(-1, -1, 0, 0));
    drawLine(painter);
}

void StraightenCanvas::drawLine(QPainter& painter) const
{
    if (!m_line)
        return;
    painter.setRenderHint(QPainter::Antialiasing);
    const std::pair<QColor, int> strokes[] = {{QColor(0, 0, 0, 140), 5}, {Appearance::shared().look().accent, 2}};
    for (const auto& [color, thickness] : strokes) {
        painter.setPen(QPen(color, thickness, Qt::SolidLine, Qt::RoundCap));
        painter.drawLine(*m_line);
        painter.setBrush(color);
        for (const QPointF& end : {m_line->p1(), m_line->p2()})
            painter.drawEllipse(end, 3, 3);
    }
}

void StraightenCanvas::mousePressEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton)
        m_line = QLineF(event->position(), event->position());
}

void StraightenCanvas::mouseMoveEvent(QMouseEvent* event)
{
    if (!m_line)
        return;
    m_line->setP2(event->position());
    update();
}

void StraightenCanvas::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton)
        return;
    const std::optional<QLineF> line = std::exchange(m_line, std::nullopt);
    update();
    if (line && line->length() >= kShortestLine)
        emit turnWanted(levelingAngle(toPicture(line->p1()), toPicture(line->p2())));
}

void StraightenCanvas::keyPressEvent(QKeyEvent* event)
{
    const double step = (event->modifiers() & Qt::ShiftModifier ? 1 : 0.1) * kDegree;
    switch (event->key()) {
    case Qt::Key_Left:
    case Qt::Key_Up:
        return emit turnWanted(step);
    case Qt::Key_Right:
    case Qt::Key_Down:
        return emit turnWanted(-step);
    default:
        QWidget::keyPressEvent(event);
    }
}
