#include "effects2d/patMorphingEffect.h"

#include "effects2d/Random.h"

#include <numbers>

namespace {

/// A damped spring that pulls its value to a target.
struct Spring {
    float value = 0, velocity = 0, acceleration = 0, force = 0;
    float damping = 0.75f, stiffness = 0.5f;
    bool hasTarget = false;
    float target = 0;

    void pullTo(double newTarget)
    {
        target = float(newTarget);
        hasTarget = true;
    }
    void step()
    {
        acceleration = hasTarget ? (target - value) * stiffness + force : force;
        velocity = (acceleration + velocity) * damping;
        value += velocity;
        force = 0;
    }
};

/// Shared by all effects. The first one isn't drawn, but takes its random numbers.
struct Springs {
    Spring unused, height, offsetX, offsetY;
} springs;

constexpr int kPatternCount = 1; // with more, patterns would be drawn away from the anchor

Spring springAt(double value)
{
    Spring spring;
    spring.value = float(value);
    return spring;
}

} // namespace

const EffectDeclaration& patMorphingEffect::declaration() const
{
    static const EffectDeclaration declared{"patMorphingEffect", QT_TRANSLATE_NOOP("BaseEffect", "Pattern Morphing"),
        QT_TRANSLATE_NOOP("BaseEffect", "Pattern Morphing Effect Generator"), kNotPlaced,
        {backgroundColor(), backgroundImage(), layerOpacity(QT_TRANSLATE_NOOP("EffectPanel", "Pattern opacity:"), 70),
            {"count", &patMorphingEffect::m_count,
                {QT_TRANSLATE_NOOP("EffectPanel", "Objects count:"),
                    QT_TRANSLATE_NOOP("EffectPanel", "How many ellipses the pattern has")},
                {.start = 30, .min = 4, .max = 60}},
            {"patColor", &patMorphingEffect::m_patColor,
                {QT_TRANSLATE_NOOP("EffectPanel", "Pattern Color:"),
                    QT_TRANSLATE_NOOP("EffectPanel", "The color of the pattern")},
                {.start = CIColor(0.2, 1, 0.2, 1)}},
            {"lineWidth", &patMorphingEffect::m_lineWidth,
                {QT_TRANSLATE_NOOP("EffectPanel", "Line width:"),
                    QT_TRANSLATE_NOOP("EffectPanel", "How thick the ellipses' lines are")},
                {.start = 10, .min = 1, .max = 30, .decimals = 1}},
            // A copy's proportion is 0, which makes lines of its ellipses, until it is set.
            {"proportion", &patMorphingEffect::m_proportion,
                {QT_TRANSLATE_NOOP("EffectPanel", "Proportion:"),
                    QT_TRANSLATE_NOOP("EffectPanel", "The width of the ellipses in parts of their height")},
                {.start = 0.5, .min = 0.1, .max = 1, .decimals = 2, .copied = false}}}};
    return declared;
}

void patMorphingEffect::awakeFromNib()
{
    AnchoredEffect::awakeFromNib();
    setupPatMorphing();
}

std::shared_ptr<BaseEffect> patMorphingEffect::mycopy() const
{
    const auto copy = std::static_pointer_cast<patMorphingEffect>(AnchoredEffect::mycopy());
    copy->setupPatMorphing();
    return copy;
}

void patMorphingEffect::setupPatMorphing()
{
    springs.unused = springAt(uniform() * 148 + 2);
    springs.height = springAt(uniform() * 195 + 25);
    springs.offsetX = springAt(uniform() * 20);
    springs.offsetY = springAt(uniform() * 20);
}

void patMorphingEffect::updateValues()
{
    springs.unused.pullTo(uniform() * 298 + 2);
    springs.height.pullTo(uniform() * 495 + 25);
    springs.offsetX.pullTo(uniform() * 20);
    springs.offsetY.pullTo(uniform() * 20);
    for (Spring* spring : {&springs.unused, &springs.height, &springs.offsetX, &springs.offsetY})
        spring->step();
}

void patMorphingEffect::regenerate(EffectControl* sender)
{
    updateValues();
    AnchoredEffect::regenerate(sender);
}

void patMorphingEffect::drawMyself(quartz::Context& context, const QRectF& rect)
{
    placeAnchor(rect);
    drawMorphingPatternRect(context, rect);
}

void patMorphingEffect::drawMorphingPatternRect(quartz::Context& context, const QRectF&)
{
    drawPatternsYContext(120, 150, context);
}

void patMorphingEffect::drawPatternsYContext(double x, double y, quartz::Context& context)
{
    context.saveGState();
    const bool apart = kPatternCount >= 2;
    context.translate(m_startPT.x + (apart ? x : 0), m_startPT.y + (apart ? y : 0));
    const double height = springs.height.value;
    const QRectF ellipse(springs.offsetX.value, springs.offsetY.value, m_proportion * height, height);
    for (int i = 0; i < m_count; ++i) {
        QTransform turn;
        turn.rotateRadians(i * (2 * std::numbers::pi / m_count));
        context.beginPath();
        context.addEllipseInRect(ellipse, turn);
        context.setRGBStrokeColor(m_patColor.red(), m_patColor.green(), m_patColor.blue(), m_patColor.alpha());
        context.setLineWidth(m_lineWidth);
        context.strokePath();
    }
    context.restoreGState();
}
