// What was drawn: figures on a canvas, painted as often and as finely as needed.
#pragma once

#include <QColor>
#include <QImage>
#include <QLineF>
#include <QPainterPath>
#include <QRect>
#include <QTransform>

#include <vector>

class QPainter;

namespace quartz {

/// A rectangle of a pixel grid that lies over a canvas, `scale` pixels a canvas unit, y up. `left` and `top` count
/// pixels from the canvas' origin; the lower edge is at `top - size.height()`.
struct Part {
    double scale = 1;
    int left = 0, top = 0;
    QSize size;

    /// The whole of a canvas, rounded out to whole pixels.
    static Part whole(QSizeF canvas, double scale = 1);

    QTransform fromCanvas() const; // to pixels of the part, y down
    QRectF onCanvas() const; // its place on the canvas; `top()` is the lower edge, since y points up
    bool operator==(const Part&) const = default;
};

/// One thing drawn. Positions are user space, which `transform` maps to the canvas.
struct Figure {
    enum class Kind {
        FillRect,
        FillPath, // by the path's fill rule
        StrokeLine, // butt ends
        StrokePath, // butt ends, mitered up to 10 line widths, then beveled
        Image, // stretched into the rectangle, blended between its pixels
    };

    Kind kind = Kind::FillRect;
    QRgba64 color; // not multiplied by alpha
    double lineWidth = 0; // user space
    QTransform transform;
    QRectF rect; // of FillRect and Image
    QLineF line; // of StrokeLine
    QPainterPath path; // of FillPath and StrokePath
    QImage image; // row 0 on top
    QRectF bounds; // on the canvas; nothing is painted outside
};

/// Figures in the order in which they were drawn, each over those before, on a canvas of `size` units with the
/// origin in the lower left corner. Transparent where nothing was drawn.
class Drawing {
public:
    Drawing() = default;
    explicit Drawing(QSizeF size)
        : m_size(size)
    {
    }

    QSizeF size() const { return m_size; }
    const std::vector<Figure>& figures() const { return m_figures; }
    void append(Figure figure); // fills in its bounds

    /// A copy that may be painted on another thread than this one: paths work out things when they are painted.
    Drawing detached() const;

    /// Paints what is seen in `part` into a new image, antialiased. Null when there is no memory for it.
    QImage rendered(const Part& part) const; // ARGB32_Premultiplied

private:
    QSizeF m_size;
    std::vector<Figure> m_figures;
};

} // namespace quartz
