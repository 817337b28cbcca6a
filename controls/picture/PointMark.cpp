#include "controls/picture/PointMark.h"

#include "platform/foundation/Look.h"

#include <algorithm>
#include <cmath>

#include <QColor>
#include <QLinearGradient>
#include <QPaintDevice>
#include <QPainter>
#include <QPen>

namespace {

constexpr double kArm = 8; // points

/// Brings a line of whole device pixels onto the pixel grid.
QPointF crisp(QPointF where, double ratio, double penWidth)
{
    const double middle = std::lround(penWidth) % 2 ? 0.5 : 0.0;
    const auto snapped = [&](double v) { return (std::round(v * ratio - middle) + middle) / ratio; };
    return {snapped(where.x()), snapped(where.y())};
}

void strokeMark(QPainter& painter, QPointF center, double radius)
{
    painter.drawLine(center - QPointF(kArm, 0), center + QPointF(kArm, 0));
    painter.drawEllipse(center, radius, radius);
    painter.drawLine(center - QPointF(0, kArm), center + QPointF(0, kArm));
}

} // namespace

void drawPointMark(QPainter& painter, QPointF where, float zoom, PointEmphasis emphasis)
{
    const double ratio = painter.device()->devicePixelRatioF();
    const double penWidth = std::max(1.0, std::round(ratio));
    const QPointF center = crisp(where, ratio, penWidth);
    const double radius = double(float(4 / zoom + 0.5)) * zoom;

    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    if (emphasis != PointEmphasis::None) {
        QColor glow = Look::light().accentMark;
        glow.setAlphaF(emphasis == PointEmphasis::Grabbed ? 0.85f : 0.45f);
        painter.setPen(Qt::NoPen);
        painter.setBrush(glow);
        painter.drawEllipse(center, radius + 1.5, radius + 1.5);
        painter.setBrush(Qt::NoBrush);
    }
    painter.setPen(QPen(Qt::black, penWidth / ratio, Qt::SolidLine, Qt::FlatCap));
    strokeMark(painter, center + QPointF(1, 1), radius);
    painter.setPen(QPen(Qt::white, penWidth / ratio, Qt::SolidLine, Qt::FlatCap));
    strokeMark(painter, center, radius);
    painter.restore();
}

void drawGradientLine(QPainter& painter, QPointF from, QPointF to, const QColor& first, const QColor& last)
{
    constexpr double kDisc = 9; // points, the radius: larger than the mark's circle
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    QLinearGradient colors(from, to);
    colors.setColorAt(0, first);
    colors.setColorAt(1, last);
    for (const auto& [brush, width] :
        {std::pair<QBrush, double>(QColor(0, 0, 0, 130), 6), {Qt::white, 4}, {colors, 2}}) {
        painter.setPen(QPen(brush, width, Qt::SolidLine, Qt::RoundCap));
        painter.drawLine(from, to);
    }
    for (const auto& [place, color] : {std::pair(from, first), {to, last}}) {
        painter.setPen(QPen(QColor(0, 0, 0, 130), 1));
        painter.setBrush(Qt::white);
        painter.drawEllipse(place, kDisc, kDisc);
        painter.setPen(Qt::NoPen);
        painter.setBrush(color);
        painter.drawEllipse(place, kDisc - 2, kDisc - 2);
    }
    painter.restore();
}

void drawPointLabel(QPainter& painter, QPointF where, const QString& label)
{
    painter.save();
    QFont font = painter.font();
    font.setPixelSize(13);
    painter.setFont(font);
    const QPointF baseline(0, -painter.fontMetrics().descent());
    painter.setPen(Qt::black);
    painter.drawText(where + QPointF(4.5, -1.5) + baseline, label);
    painter.setPen(Qt::white);
    painter.drawText(where + QPointF(3, -3) + baseline, label);
    painter.restore();
}
