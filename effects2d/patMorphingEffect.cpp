#include "effects2d/patMorphingEffect.h"

#include "effects2d/EffectPanel.h"
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

void patMorphingEffect::awakeFromNib()
{
    setName(QT_TRANSLATE_NOOP("BaseEffect", "Pattern Morphing"));
    setTips(QT_TRANSLATE_NOOP("BaseEffect", "Pattern Morphing Effect Generator"));
    m_useBackImage = true;
    m_bgColor = CIColor(1, 1, 1, 0.5);
    m_patColor = CIColor(0.2, 1, 0.2, 1);
    m_opacity = 70;
    m_count = 30;
    m_lineWidth = 10;
    m_proportion = 0.5;
    m_startPT = kNotPlaced;
    setupPatMorphing();
}

std::shared_ptr<BaseEffect> patMorphingEffect::mycopy() const
{
    const auto copy = std::static_pointer_cast<patMorphingEffect>(copyWithZone());
    copy->setUseBackImage(m_useBackImage);
    copy->setBgColor(m_bgColor);
    copy->setPatColor(m_patColor);
    copy->seOpacity(m_opacity);
    copy->setPatCount(m_count);
    copy->setLineWidth(m_lineWidth);
    copy->setStartPoint(m_startPT);
    copy->setupPatMorphing();
    return copy;
}

void patMorphingEffect::read(const CIDictionary& dictionary)
{
    AnchoredEffect::read(dictionary);
    readParameter(dictionary, "count", m_count);
    readParameter(dictionary, "patColor", m_patColor);
    readParameter(dictionary, "lineWidth", m_lineWidth);
    readParameter(dictionary, "proportion", m_proportion);
}

CIDictionary patMorphingEffect::save() const
{
    CIDictionary dictionary = AnchoredEffect::save();
    dictionary["count"] = m_count;
    dictionary["patColor"] = m_patColor;
    dictionary["lineWidth"] = m_lineWidth;
    dictionary["proportion"] = m_proportion;
    return dictionary;
}

void patMorphingEffect::buildControls(EffectPanel& panel)
{
    addCommonControls(panel, EffectPanel::tr("Pattern opacity:"));
    panel.addSlider({EffectPanel::tr("Objects count:"), EffectPanel::tr("How many ellipses the pattern has")},
        {.min = 4, .max = 60}, m_count, action(&patMorphingEffect::changePatCount));
    panel.addColorWell({EffectPanel::tr("Pattern Color:"), EffectPanel::tr("The color of the pattern")}, m_patColor,
        action(&patMorphingEffect::changePatColor));
    panel.addSlider({EffectPanel::tr("Line width:"), EffectPanel::tr("How thick the ellipses' lines are")},
        {.min = 1, .max = 30, .decimals = 1}, m_lineWidth, action(&patMorphingEffect::changeLineWidth));
    panel.addSlider(
        {EffectPanel::tr("Proportion:"), EffectPanel::tr("The width of the ellipses in parts of their height")},
        {.min = 0.1, .max = 1, .decimals = 2}, m_proportion, action(&patMorphingEffect::changeProportion));
    addGenerateButton(panel);
}

// --- drawing ---

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

// --- parameters ---

void patMorphingEffect::changePatCount(EffectControl* sender)
{
    changeParameter(&patMorphingEffect::m_count, &patMorphingEffect::setchangePatCountSender, sender, Redraw::Layer);
}

void patMorphingEffect::setchangePatCountSender(int count, EffectControl* sender)
{
    restoreParameter(
        &patMorphingEffect::m_count, count, &patMorphingEffect::setchangePatCountSender, sender, Redraw::Layer);
}

void patMorphingEffect::changePatColor(EffectControl* sender)
{
    changeParameter(&patMorphingEffect::m_patColor, &patMorphingEffect::setchangePatColorSender, sender, Redraw::Layer);
}

void patMorphingEffect::setchangePatColorSender(CIColor color, EffectControl* sender)
{
    restoreParameter(
        &patMorphingEffect::m_patColor, color, &patMorphingEffect::setchangePatColorSender, sender, Redraw::Layer);
}

void patMorphingEffect::changeLineWidth(EffectControl* sender)
{
    changeParameter(
        &patMorphingEffect::m_lineWidth, &patMorphingEffect::setchangeLineWidthSender, sender, Redraw::Layer);
}

void patMorphingEffect::setchangeLineWidthSender(double width, EffectControl* sender)
{
    restoreParameter(
        &patMorphingEffect::m_lineWidth, width, &patMorphingEffect::setchangeLineWidthSender, sender, Redraw::Layer);
}

void patMorphingEffect::changeProportion(EffectControl* sender)
{
    changeParameter(
        &patMorphingEffect::m_proportion, &patMorphingEffect::setchangeProportionSender, sender, Redraw::Layer);
}

void patMorphingEffect::setchangeProportionSender(double proportion, EffectControl* sender)
{
    restoreParameter(&patMorphingEffect::m_proportion, proportion, &patMorphingEffect::setchangeProportionSender,
        sender, Redraw::Layer);
}
