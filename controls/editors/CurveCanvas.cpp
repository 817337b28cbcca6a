#include "controls/editors/CurveCanvas.h"

#include "controls/picture/HistogramView.h"
#include "platform/foundation/Appearance.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include <QKeyEvent>
#include <QPainter>

namespace {

constexpr double kMargin = 6; // around the plot, for points on its edge
constexpr double kPoint = 4.5, kReach = 16; // points of the screen
constexpr double kStep = 0.01, kFarStep = 0.1;

bool isArrow(int key)
{
    return key == Qt::Key_Left || key == Qt::Key_Right || key == Qt::Key_Up || key == Qt::Key_Down;
}

} // namespace

CurveCanvas::CurveCanvas(QWidget* parent)
    : QWidget(parent)
{
    installAccessibleCanvas();
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    QSizePolicy policy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    policy.setHeightForWidth(true);
    setSizePolicy(policy);
}

int CurveCanvas::heightForWidth(int width) const { return std::clamp(width * 4 / 5, 120, 220); }

void CurveCanvas::setLines(std::vector<Line> lines)
{
    m_lines = std::move(lines);
    update();
}

void CurveCanvas::setPoints(std::vector<QPointF> points, const QColor& color)
{
    m_points = std::move(points);
    m_pointColor = color;
    if (m_selected && *m_selected >= m_points.size())
        select({});
    update();
}

void CurveCanvas::setHistogram(const Histogram::Levels& levels, const QColor& color)
{
    m_levels = levels;
    m_histogramColor = color;
    update();
}

// --- where things are ---

QRectF CurveCanvas::plot() const { return QRectF(rect()).adjusted(kMargin, kMargin, -kMargin, -kMargin); }

QPointF CurveCanvas::toWidget(const QPointF& place) const
{
    const QRectF area = plot();
    return {area.left() + place.x() * area.width(), area.bottom() - place.y() * area.height()};
}

QPointF CurveCanvas::toPlace(const QPointF& widget) const
{
    const QRectF area = plot();
    return {(widget.x() - area.left()) / area.width(), (area.bottom() - widget.y()) / area.height()};
}

std::optional<std::size_t> CurveCanvas::pointAt(const QPointF& widget) const
{
    std::optional<std::size_t> nearest;
    double least = kReach;
    for (std::size_t i = 0; i < m_points.size(); ++i) {
        const QPointF way = toWidget(m_points[i]) - widget;
        if (const double distance = std::hypot(way.x(), way.y()); distance < least) {
            least = distance;
            nearest = i;
        }
    }
    return nearest;
}

QList<CanvasPoint> CurveCanvas::canvasPoints() const
{
    QList<CanvasPoint> result;
    for (std::size_t i = 0; i < m_points.size(); ++i)
        result.append({tr("Point %1").arg(i + 1),
            tr("%1 %, becomes %2 %", "a brightness and what a curve makes of it")
                .arg(std::lround(m_points[i].x() * 100))
                .arg(std::lround(m_points[i].y() * 100)),
            toWidget(m_points[i]), m_selected == i});
    return result;
}

// --- drawing ---

void CurveCanvas::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    drawPlot(painter);
    drawPoints(painter);
}

void CurveCanvas::drawPlot(QPainter& painter) const
{
    const Look& look = Appearance::shared().look();
    const QRectF area = plot();
    painter.setPen(QPen(hasFocus() ? look.accentMark : look.border, 1));
    painter.setBrush(look.field);
    painter.drawRoundedRect(area.adjusted(-0.5, -0.5, 0.5, 0.5), 4, 4);
    painter.save();
    painter.setClipRect(area);
    QColor faint = look.border;
    faint.setAlphaF(0.5f);
    painter.setPen(QPen(faint, 1));
    for (int quarter = 1; quarter < 4; ++quarter) {
        const QPointF at(std::floor(area.left() + area.width() * quarter / 4) + 0.5,
            std::floor(area.top() + area.height() * quarter / 4) + 0.5);
        painter.drawLine(QPointF(at.x(), area.top()), QPointF(at.x(), area.bottom()));
        painter.drawLine(QPointF(area.left(), at.y()), QPointF(area.right(), at.y()));
    }
    drawLevels(painter, m_levels, area, m_histogramColor);
    painter.setPen(QPen(look.border, 1, Qt::DashLine));
    painter.drawLine(area.bottomLeft(), area.topRight());
    for (const Line& line : m_lines) {
        QPolygonF places;
        for (std::size_t i = 0; i < line.heights.size(); ++i)
            places << toWidget({double(i) / double(line.heights.size() - 1), line.heights[i]});
        painter.setPen(QPen(line.color, line.isEdited ? 1.8 : 1));
        painter.setBrush(Qt::NoBrush);
        painter.drawPolyline(places);
    }
    painter.restore();
}

void CurveCanvas::drawPoints(QPainter& painter) const
{
    const Look& look = Appearance::shared().look();
    for (std::size_t i = 0; i < m_points.size(); ++i) {
        const bool isSelected = m_selected == i;
        const double radius = isSelected || m_hovered == i ? kPoint + 1 : kPoint;
        painter.setPen(QPen(isSelected ? look.accentMark : m_pointColor, isSelected ? 2.5 : 1.8));
        painter.setBrush(isSelected ? look.accentMark : look.field);
        painter.drawEllipse(toWidget(m_points[i]), radius, radius);
    }
}

// --- gestures ---

void CurveCanvas::begin()
{
    if (!std::exchange(m_changing, true))
        emit began();
}

void CurveCanvas::end()
{
    if (std::exchange(m_changing, false))
        emit ended();
}

void CurveCanvas::select(std::optional<std::size_t> index)
{
    if (std::exchange(m_selected, index) == index)
        return;
    update();
    emit selectionChanged();
    if (index)
        notifyPoint(this, qsizetype(*index), QAccessible::Focus);
}

void CurveCanvas::move(const QPointF& to)
{
    const QPointF kept(std::clamp(to.x(), 0.0, 1.0), std::clamp(to.y(), 0.0, 1.0));
    if (kept == m_points[*m_selected])
        return;
    begin();
    emit moved(*m_selected, kept);
    notifyPoint(this, qsizetype(*m_selected), QAccessible::DescriptionChanged);
}

void CurveCanvas::mousePressEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton)
        return QWidget::mousePressEvent(event);
    select(pointAt(event->position()));
    if (!m_selected)
        return;
    m_dragging = true;
    m_grip = m_points[*m_selected] - toPlace(event->position());
}

void CurveCanvas::mouseMoveEvent(QMouseEvent* event)
{
    if (m_dragging && m_selected)
        return move(toPlace(event->position()) + m_grip);
    const auto hovered = pointAt(event->position());
    setCursor(hovered ? Qt::PointingHandCursor : Qt::ArrowCursor);
    if (std::exchange(m_hovered, hovered) != hovered)
        update();
}

void CurveCanvas::mouseReleaseEvent(QMouseEvent*)
{
    m_dragging = false;
    end();
}

void CurveCanvas::mouseDoubleClickEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton && pointAt(event->position()))
        emit resetWanted(*pointAt(event->position()));
}

void CurveCanvas::leaveEvent(QEvent*)
{
    m_hovered.reset();
    update();
}

void CurveCanvas::hideEvent(QHideEvent* event)
{
    m_dragging = false;
    end();
    QWidget::hideEvent(event);
}

// --- keys ---

bool CurveCanvas::event(QEvent* event)
{
    if (event->type() == QEvent::ShortcutOverride && m_selected) {
        // These belong to the selected point, even where a menu uses them.
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (isArrow(key) || key == Qt::Key_Delete || key == Qt::Key_Backspace || key == Qt::Key_Escape) {
            event->accept();
            return true;
        }
    }
    return QWidget::event(event);
}

bool CurveCanvas::moveByKey(int key, bool far)
{
    if (!m_selected || !isArrow(key))
        return false;
    const double step = far ? kFarStep : kStep;
    const double x = key == Qt::Key_Left ? -step : key == Qt::Key_Right ? step : 0;
    const double y = key == Qt::Key_Down ? -step : key == Qt::Key_Up ? step : 0;
    move(m_points[*m_selected] + QPointF(x, y)); // one gesture until the key is released
    return true;
}

void CurveCanvas::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape && m_selected)
        select({});
    else if ((event->key() == Qt::Key_Delete || event->key() == Qt::Key_Backspace) && m_selected)
        emit resetWanted(*m_selected);
    else if (!moveByKey(event->key(), event->modifiers() & Qt::ShiftModifier))
        QWidget::keyPressEvent(event);
}

void CurveCanvas::keyReleaseEvent(QKeyEvent* event)
{
    if (!event->isAutoRepeat() && !m_dragging)
        end();
    QWidget::keyReleaseEvent(event);
}

void CurveCanvas::focusOutEvent(QFocusEvent* event)
{
    if (!m_dragging)
        end();
    QWidget::focusOutEvent(event);
}

bool CurveCanvas::focusNextPrevChild(bool next)
{
    const std::size_t count = m_points.size();
    // Entering by Tab selects nothing yet, so that nobody is caught here who only passes by.
    std::optional<std::size_t> wanted;
    if (count > 0 && !m_selected)
        wanted = next ? 0 : count - 1;
    else if (count > 0 && (next ? *m_selected + 1 < count : *m_selected > 0))
        wanted = *m_selected + (next ? 1 : -1);
    select(wanted);
    return wanted.has_value() || QWidget::focusNextPrevChild(next);
}
