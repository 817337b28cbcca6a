// A drawing context with y up.
#pragma once

#include "platform/quartz/Drawing.h"

namespace quartz {

/// Draws on a Drawing. Positions are canvas units, y up, seen through the current transform. Color components are
/// sRGB-coded, 0 to 1, not multiplied by alpha. Rectangles may have negative sizes: they are standardised, that is,
/// measured from the other corner.
class Context {
public:
    explicit Context(Drawing& drawing)
        : m_drawing(drawing)
    {
    }

    // State
    void saveGState() { m_saved.push_back(m_state); }
    void restoreGState(); // nothing without a saved one
    void translate(double dx, double dy) { m_state.transform.translate(dx, dy); }
    /// Comes before the present transform: what is drawn from now on is mapped by `transform` first.
    void concatenate(const QTransform& transform) { m_state.transform = transform * m_state.transform; }
    void setRGBFillColor(double red, double green, double blue, double alpha);
    void setRGBStrokeColor(double red, double green, double blue, double alpha);
    void setLineWidth(double width) { m_state.lineWidth = width; }

    // The current path. Filling or stroking it empties it.
    void beginPath() { m_path = {}; }
    void moveToPoint(QPointF point) { m_path.moveTo(point); }
    void addLineToPoint(QPointF point) { m_path.lineTo(point); }
    void addCurveToPoint(QPointF control1, QPointF control2, QPointF end) { m_path.cubicTo(control1, control2, end); }
    /// A whole circle, counterclockwise from the right, joined by a line to what the path ends with.
    void addCircle(QPointF center, double radius);
    /// The ellipse in `rect`, mapped by `transform`, as a part of its own.
    void addEllipseInRect(const QRectF& rect, const QTransform& transform = {});
    void closePath() { m_path.closeSubpath(); }
    void fillPath(); // by winding number
    void strokePath();

    // Whole figures; the current path stays out of it.
    void fillRect(const QRectF& rect);
    void strokeRect(const QRectF& rect);
    /// A frame of `width` that lies within the rectangle, in the fill color.
    void frameRect(const QRectF& rect, double width = 1);
    void fillEllipseInRect(const QRectF& rect);
    void strokeLine(QPointF from, QPointF to);
    /// Stretches the image into the rectangle, its first row on top.
    void drawImage(const QRectF& rect, const QImage& image);

private:
    struct State {
        QTransform transform;
        QRgba64 fill = QRgba64::fromRgba(0, 0, 0, 255), stroke = fill;
        double lineWidth = 1;
    };

    Figure figure(Figure::Kind kind) const;
    void fill(QPainterPath path);
    void stroke(QPainterPath path);

    Drawing& m_drawing;
    State m_state;
    std::vector<State> m_saved;
    QPainterPath m_path;
};

} // namespace quartz
