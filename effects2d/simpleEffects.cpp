// The order of the random numbers is part of what the objects look like.
#include "effects2d/simpleEffects.h"

#include "effects2d/Random.h"

#include <cmath>
#include <numbers>

namespace {

constexpr double kDegree = std::numbers::pi / 180;

/// May have negative sizes.
QRectF randomRect(const QRectF& r)
{
    const QPointF p = randomPoint(r), q = randomPoint(r);
    return {p, QSizeF(q.x() - p.x(), q.y() - p.y())};
}

double randomLineWidth() { return std::rand() % 10 + 2; }

void setRandomFillColor(quartz::Context& context)
{
    const RandomColor color;
    context.setRGBFillColor(color.red, color.green, color.blue, color.alpha);
}

/// Sets what the object at `index` is painted with; true when it is stroked. Objects are filled and stroked in turn.
bool setRandomPaint(quartz::Context& context, int index)
{
    const RandomColor color;
    if (index % 2 == 0) {
        context.setRGBFillColor(color.red, color.green, color.blue, color.alpha);
        return false;
    }
    context.setRGBStrokeColor(color.red, color.green, color.blue, color.alpha);
    context.setLineWidth(randomLineWidth());
    return true;
}

void paintPath(quartz::Context& context, int index)
{
    if (setRandomPaint(context, index)) {
        context.strokePath();
    } else {
        context.closePath();
        context.fillPath();
    }
}

void setRandomOpaqueColor(quartz::Context& context)
{
    const double red = double(random() % 255) / 255.0;
    const double green = double(random() % 255) / 255.0;
    const double blue = double(random() % 255) / 255.0;
    context.setRGBFillColor(red, green, blue, 1);
}

} // namespace

const EffectDeclaration& simpleEffects::declaration() const
{
    static const EffectDeclaration declared{"simpleEffects", QT_TRANSLATE_NOOP("BaseEffect", "Simple Objects"),
        QT_TRANSLATE_NOOP("BaseEffect", "Simple Objects Generator"), {},
        {{"drawObj", &simpleEffects::m_drawObj,
             {QT_TRANSLATE_NOOP("EffectPanel", "Object type:"), QT_TRANSLATE_NOOP("EffectPanel", "What is drawn")},
             {.titles = {QT_TRANSLATE_NOOP("EffectPanel", "Rects"), QT_TRANSLATE_NOOP("EffectPanel", "Circles"),
                  QT_TRANSLATE_NOOP("EffectPanel", "Bezier Paths"), QT_TRANSLATE_NOOP("EffectPanel", "Triangles"),
                  QT_TRANSLATE_NOOP("EffectPanel", "Flowers"), QT_TRANSLATE_NOOP("EffectPanel", "Balls"),
                  QT_TRANSLATE_NOOP("EffectPanel", "Lights"), QT_TRANSLATE_NOOP("EffectPanel", "Spin Squares")}}},
            // An undone color tells the other view: it shows when this one is next drawn.
            backgroundColor(CIColor(1, 1, 1, 0.5), "UpdateOpenGLView"), backgroundImage(),
            layerOpacity(QT_TRANSLATE_NOOP("EffectPanel", "Objects opacity:"), 50),
            {"object_count", &simpleEffects::m_object_count,
                {QT_TRANSLATE_NOOP("EffectPanel", "Objects count:"),
                    QT_TRANSLATE_NOOP("EffectPanel", "How many objects are drawn")},
                {.start = 30, .min = 10, .max = 200, .continuous = false}}},
        QT_TRANSLATE_NOOP("BaseEffect", "The objects are thrown by chance. Another type or count throws them anew.")};
    return declared;
}

void simpleEffects::drawMyself(quartz::Context& context, const QRectF& rect)
{
    using Draw = void (simpleEffects::*)(quartz::Context&, const QRectF&);
    constexpr std::array<Draw, 8> kinds{&simpleEffects::rectanglesRect, &simpleEffects::circlesRect,
        &simpleEffects::bezierPathsRect, &simpleEffects::trianglesRect, &simpleEffects::flowersRect,
        &simpleEffects::ballsRect, &simpleEffects::lightsRect, &simpleEffects::spinningSquaresRect};
    if (m_drawObj >= 0 && m_drawObj < int(kinds.size()))
        (this->*kinds[std::size_t(m_drawObj)])(context, rect);
}

void simpleEffects::rectanglesRect(quartz::Context& context, const QRectF& rect)
{
    for (int i = 0; i < m_object_count; ++i) {
        const bool strokes = setRandomPaint(context, i);
        const QRectF r = randomRect(rect);
        strokes ? context.strokeRect(r) : context.fillRect(r);
    }
}

void simpleEffects::circlesRect(quartz::Context& context, const QRectF& rect)
{
    for (int i = 0; i < m_object_count; ++i) {
        const QRectF r = randomRect(rect).normalized();
        const float radius = std::min(float(r.width()), float(r.height())); // reaches beyond the rectangle
        context.beginPath();
        context.addCircle(r.center(), radius);
        context.closePath();
        paintPath(context, i);
    }
}

void simpleEffects::bezierPathsRect(quartz::Context& context, const QRectF& rect)
{
    for (int i = 0; i < m_object_count; ++i) {
        const int last = std::rand() % 8;
        context.beginPath();
        context.moveToPoint(randomPoint(rect));
        for (int segment = 0; segment <= last; ++segment) {
            const double y = randomY(rect); // before x, unlike other points
            const QPointF end(randomX(rect), y);
            if (segment % 2) {
                const QPointF control1 = randomPoint(rect), control2 = randomPoint(rect);
                context.addCurveToPoint(control1, control2, end);
            } else {
                context.addLineToPoint(end);
            }
        }
        paintPath(context, i);
    }
}

void simpleEffects::trianglesRect(quartz::Context& context, const QRectF& rect)
{
    for (int i = 0; i < m_object_count; ++i) {
        context.beginPath();
        context.moveToPoint(randomPoint(rect));
        context.addLineToPoint(randomPoint(rect));
        context.addLineToPoint(randomPoint(rect));
        paintPath(context, i);
    }
}

void simpleEffects::flowersRect(quartz::Context& context, const QRectF& rect)
{
    const float size = std::fmax(float(rect.width()), float(rect.height())) / 100;
    const QSizeF petal(size, size);
    for (int i = 0; i < 4 * m_object_count; ++i) {
        const double x = uniform() * rect.width();
        const QPointF center(x, uniform() * rect.height());
        setRandomFillColor(context);
        // Five petals that leave a gap between the last and the first.
        for (int angle = 0; angle <= 300; angle += 75) {
            const QPointF outward(std::cos(angle * kDegree), std::sin(angle * kDegree));
            context.fillEllipseInRect({center + double(size) * outward, petal});
        }
        setRandomFillColor(context);
        context.fillEllipseInRect({center, petal});
    }
}

void simpleEffects::ballsRect(quartz::Context& context, const QRectF& rect)
{
    const int width = int(rect.width());
    if (width < 1)
        return;
    for (int i = 0; i < 8 * m_object_count; ++i) {
        const QPointF origin = randomPoint(rect);
        setRandomFillColor(context);
        const long x = random() % width;
        const long y = random() % width; // a square, also on other canvases
        const float dx = float(double(x) - origin.x()), dy = float(double(y) - origin.y());
        const float diameter = std::sqrt(dx * dx + dy * dy) / 10;
        context.fillEllipseInRect({origin, QSizeF(diameter, diameter)});
    }
}

void simpleEffects::lightsRect(quartz::Context& context, const QRectF& rect)
{
    const QPointF center(rect.width() / 2, rect.height() / 2);
    for (int i = 0; i < m_object_count / 2; ++i) {
        const double angle = 2 * i * std::numbers::pi / 30; // rays repeat after a turn
        const QPointF direction(std::cos(angle) * center.x(), std::sin(angle) * center.y());
        setRandomFillColor(context);
        for (int j = 0; j < 10; ++j)
            context.fillEllipseInRect({center + (j + 2) / 10.0 * direction, QSizeF(20, 20)});
    }
}

void simpleEffects::spinningSquaresRect(quartz::Context& context, const QRectF& rect)
{
    const QPointF center(rect.left() + rect.width() / 2, rect.top() + rect.height() / 2);
    const float side = std::fmax(float(rect.width()), float(rect.height()));
    const float step = (side - 5) / float(m_object_count);
    QRectF square(center.x() - side, center.y() - side, 2 * side, 2 * side);
    double angle = 0; // degrees
    for (int i = 0; i < m_object_count; ++i) {
        // Turns add up: the context keeps those of the squares before.
        QTransform turn;
        turn.translate(rect.width() / 2, rect.height() / 2);
        turn.rotateRadians(angle * kDegree);
        turn.translate(-rect.width() / 2, -rect.height() / 2);
        context.concatenate(turn);
        setRandomOpaqueColor(context);
        context.fillRect(square);
        setRandomOpaqueColor(context);
        context.frameRect(square);
        square.adjust(step, step, -step, -step);
        angle += 1.0;
    }
}
