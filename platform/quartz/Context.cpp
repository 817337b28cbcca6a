#include "platform/quartz/Context.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <utility>

namespace quartz {

namespace {

QRgba64 color(double red, double green, double blue, double alpha)
{
    const auto component = [](double v) { return quint16(std::lround(std::clamp(v, 0.0, 1.0) * 65535)); };
    return QRgba64::fromRgba64(component(red), component(green), component(blue), component(alpha));
}

/// The two ends, if the path is one straight line: such a path is painted in a quicker way.
/// Closing it only leads back over the same pixels.
std::optional<QLineF> asLine(const QPainterPath& path)
{
    const int count = path.elementCount();
    const bool straight = count >= 2 && path.elementAt(0).isMoveTo() && path.elementAt(1).isLineTo();
    if (straight
        && (count == 2
            || (count == 3 && path.elementAt(2).isLineTo()
                && QPointF(path.elementAt(2)) == QPointF(path.elementAt(0)))))
        return QLineF(path.elementAt(0), path.elementAt(1));
    return {};
}

} // namespace

void Context::restoreGState()
{
    if (m_saved.empty())
        return;
    m_state = m_saved.back();
    m_saved.pop_back();
}

void Context::setRGBFillColor(double red, double green, double blue, double alpha)
{
    m_state.fill = color(red, green, blue, alpha);
}

void Context::setRGBStrokeColor(double red, double green, double blue, double alpha)
{
    m_state.stroke = color(red, green, blue, alpha);
}

Figure Context::figure(Figure::Kind kind) const
{
    Figure figure;
    figure.kind = kind;
    figure.transform = m_state.transform;
    const bool strokes = kind == Figure::Kind::StrokeLine || kind == Figure::Kind::StrokePath;
    figure.color = strokes ? m_state.stroke : m_state.fill;
    figure.lineWidth = strokes ? m_state.lineWidth : 0;
    return figure;
}

void Context::addCircle(QPointF center, double radius)
{
    const QRectF square(center.x() - radius, center.y() - radius, 2 * radius, 2 * radius);
    if (m_path.elementCount() == 0)
        m_path.moveTo(center + QPointF(radius, 0));
    m_path.arcTo(square, 0, -360); // angles of paths count clockwise when y is up
}

void Context::addEllipseInRect(const QRectF& rect, const QTransform& transform)
{
    QPainterPath ellipse;
    ellipse.addEllipse(rect.normalized());
    m_path.addPath(transform.map(ellipse));
}

void Context::fillPath()
{
    QPainterPath path = std::exchange(m_path, {});
    path.setFillRule(Qt::WindingFill);
    fill(std::move(path));
}

void Context::fill(QPainterPath path)
{
    Figure filled = figure(Figure::Kind::FillPath);
    filled.path = std::move(path);
    m_drawing.append(std::move(filled));
}

void Context::strokePath() { stroke(std::exchange(m_path, {})); }

void Context::stroke(QPainterPath path)
{
    const std::optional<QLineF> line = asLine(path);
    Figure stroked = figure(line ? Figure::Kind::StrokeLine : Figure::Kind::StrokePath);
    if (line)
        stroked.line = *line;
    else
        stroked.path = std::move(path);
    m_drawing.append(std::move(stroked));
}

void Context::fillRect(const QRectF& rect)
{
    Figure filled = figure(Figure::Kind::FillRect);
    filled.rect = rect.normalized();
    m_drawing.append(std::move(filled));
}

void Context::strokeRect(const QRectF& rect)
{
    QPainterPath path;
    path.addRect(rect.normalized());
    stroke(std::move(path));
}

void Context::frameRect(const QRectF& rect, double width)
{
    const QRectF outer = rect.normalized();
    const QRectF inner = outer.adjusted(width, width, -width, -width);
    QPainterPath path;
    path.setFillRule(Qt::OddEvenFill);
    path.addRect(outer);
    if (inner.width() > 0 && inner.height() > 0)
        path.addRect(inner);
    fill(std::move(path));
}

void Context::fillEllipseInRect(const QRectF& rect)
{
    QPainterPath path;
    path.addEllipse(rect.normalized());
    fill(std::move(path));
}

void Context::strokeLine(QPointF from, QPointF to)
{
    Figure stroked = figure(Figure::Kind::StrokeLine);
    stroked.line = {from, to};
    m_drawing.append(std::move(stroked));
}

void Context::drawImage(const QRectF& rect, const QImage& image)
{
    Figure drawn = figure(Figure::Kind::Image);
    drawn.rect = rect.normalized();
    drawn.image = image;
    m_drawing.append(std::move(drawn));
}

} // namespace quartz
