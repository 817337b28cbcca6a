#include "platform/quartz/Drawing.h"

#include <algorithm>
#include <cmath>

#include <QPainter>

namespace quartz {

namespace {

constexpr double kMiterLimit = 10; // of line widths

QRectF userBounds(const Figure& figure)
{
    const double reach = figure.lineWidth / 2;
    switch (figure.kind) {
    case Figure::Kind::FillRect:
    case Figure::Kind::Image:
        return figure.rect;
    case Figure::Kind::FillPath:
        return figure.path.controlPointRect();
    case Figure::Kind::StrokeLine:
        return QRectF(figure.line.p1(), figure.line.p2()).normalized().adjusted(-reach, -reach, reach, reach);
    case Figure::Kind::StrokePath: {
        const double miter = reach * kMiterLimit;
        return figure.path.controlPointRect().adjusted(-miter, -miter, miter, miter);
    }
    }
    return {};
}

/// Rectangles without width or height count too: a vertical line has such a path.
bool touches(const QRectF& a, const QRectF& b)
{
    return a.left() <= b.right() && a.right() >= b.left() && a.top() <= b.bottom() && a.bottom() >= b.top();
}

void drawStretched(QPainter& painter, const Figure& figure)
{
    // Rows of images go down while y goes up.
    painter.translate(0, figure.rect.top() + figure.rect.bottom());
    painter.scale(1, -1);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    // Edge pixels are stretched up to the edge, not faded into what lies beneath.
    painter.setRenderHint(QPainter::Antialiasing, false);
    painter.drawImage(figure.rect, figure.image);
    painter.setRenderHint(QPainter::Antialiasing);
}

/// True when nothing drawn before the figure can be seen within `visible`.
bool hidesAllBefore(const Figure& figure, const QRectF& visible)
{
    if (figure.kind != Figure::Kind::FillRect || !figure.color.isOpaque() || !figure.bounds.contains(visible))
        return false;
    bool invertible = false;
    const QTransform toUser = figure.transform.inverted(&invertible);
    return invertible && figure.rect.contains(toUser.mapRect(visible));
}

QPen penOf(const Figure& figure)
{
    QPen pen(QColor(figure.color), figure.lineWidth, Qt::SolidLine, Qt::FlatCap, Qt::SvgMiterJoin);
    pen.setMiterLimit(kMiterLimit);
    return pen;
}

void paintFigure(QPainter& painter, const Figure& figure)
{
    switch (figure.kind) {
    case Figure::Kind::FillRect:
        painter.fillRect(figure.rect, QColor(figure.color));
        return;
    case Figure::Kind::FillPath:
        painter.fillPath(figure.path, QColor(figure.color));
        return;
    case Figure::Kind::StrokeLine:
        painter.setPen(penOf(figure));
        painter.drawLine(figure.line);
        return;
    case Figure::Kind::StrokePath:
        painter.strokePath(figure.path, penOf(figure));
        return;
    case Figure::Kind::Image:
        drawStretched(painter, figure);
        return;
    }
}

} // namespace

Part Part::whole(QSizeF canvas, double scale)
{
    const int width = int(std::ceil(canvas.width() * scale)), height = int(std::ceil(canvas.height() * scale));
    return {scale, 0, height, {width, height}};
}

QTransform Part::fromCanvas() const { return QTransform(scale, 0, 0, -scale, -left, top); }

QRectF Part::onCanvas() const
{
    return {left / scale, (top - size.height()) / scale, size.width() / scale, size.height() / scale};
}

void Drawing::append(Figure figure)
{
    figure.bounds = figure.transform.mapRect(userBounds(figure));
    m_figures.push_back(std::move(figure));
}

Drawing Drawing::detached() const
{
    Drawing copy = *this;
    for (Figure& figure : copy.m_figures)
        if (!figure.path.isEmpty()) {
            const QPainterPath::Element first = figure.path.elementAt(0);
            figure.path.setElementPositionAt(0, first.x, first.y); // writing gives the path elements of its own
        }
    return copy;
}

QImage Drawing::rendered(const Part& part) const
{
    QImage image(part.size, QImage::Format_ARGB32_Premultiplied);
    if (image.isNull())
        return image;
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    const QTransform base = part.fromCanvas();
    const QRectF visible = part.onCanvas();
    auto figure = m_figures.end();
    while (figure != m_figures.begin() && !hidesAllBefore(*std::prev(figure), visible))
        --figure;
    if (figure != m_figures.begin())
        --figure;
    for (; figure != m_figures.end(); ++figure) {
        if (!touches(figure->bounds, visible))
            continue;
        painter.setTransform(figure->transform.isIdentity() ? base : figure->transform * base);
        paintFigure(painter, *figure);
    }
    return image;
}

} // namespace quartz
