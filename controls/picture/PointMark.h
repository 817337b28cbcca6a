// How control points look on the picture.
#pragma once

#include <QPointF>

class QColor;
class QPainter;
class QString;

enum class PointEmphasis {
    None,
    Hovered, // a click would grab it
    Grabbed,
};

/// Draws a cross hair with a circle in white over a black shadow, `where` in points. It looks the same at every zoom.
void drawPointMark(QPainter&, QPointF where, float zoom, PointEmphasis);

/// Draws the line along which a gradient goes, in its colors and with a disc of color at each end.
void drawGradientLine(QPainter&, QPointF from, QPointF to, const QColor& first, const QColor& last);

/// Draws the name of a point beside its mark.
void drawPointLabel(QPainter&, QPointF where, const QString& label);
