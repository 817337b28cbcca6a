// A rosette of ellipses.
#pragma once

#include "effects2d/AnchoredEffect.h"

/// Ellipses in a ring around the anchor. Springs pull their size and place towards random targets, a step at a
/// press of "Generate". All effects of this class share the springs.
class patMorphingEffect : public AnchoredEffect {
public:
    void awakeFromNib() override;
    /// The copy's proportion is 0, which makes lines of its ellipses, until it is set.
    std::shared_ptr<BaseEffect> mycopy() const override;
    std::string className() const override { return "patMorphingEffect"; }
    void read(const CIDictionary& dictionary) override;
    CIDictionary save() const override;

    /// Gives the springs new random positions, at rest.
    void setupPatMorphing();
    /// Gives the springs new random targets and moves them one step.
    void updateValues();
    void regenerate(EffectControl* sender) override;
    void drawMyself(quartz::Context& context, const QRectF& rect) override;
    void drawMorphingPatternRect(quartz::Context& context, const QRectF& rect);
    void drawPatternsYContext(double x, double y, quartz::Context& context);

    void setPatColor(const CIColor& color) { m_patColor = color; }
    void setPatCount(int count) { m_count = count; }
    void setLineWidth(double width) { m_lineWidth = width; }
    void setProportin(double proportion) { m_proportion = proportion; }
    CIColor patColor() const { return m_patColor; }
    int patCount() const { return m_count; }
    double lineWidth() const { return m_lineWidth; }
    double proportion() const { return m_proportion; }

    void changePatCount(EffectControl* sender);
    void setchangePatCountSender(int count, EffectControl* sender);
    void changePatColor(EffectControl* sender);
    void setchangePatColorSender(CIColor color, EffectControl* sender);
    void changeLineWidth(EffectControl* sender);
    void setchangeLineWidthSender(double width, EffectControl* sender);
    void changeProportion(EffectControl* sender);
    void setchangeProportionSender(double proportion, EffectControl* sender);

protected:
    void buildControls(EffectPanel& panel) override;
    std::shared_ptr<BaseEffect> init() const override { return std::make_shared<patMorphingEffect>(); }

private:
    CIColor m_patColor{0, 0, 0, 0};
    int m_count = 0; // ellipses
    double m_lineWidth = 0; // picture pixels
    double m_proportion = 0; // width of an ellipse / its height
};
