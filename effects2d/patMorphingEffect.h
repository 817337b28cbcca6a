// A rosette of ellipses.
#pragma once

#include "effects2d/AnchoredEffect.h"

/// Ellipses in a ring around the anchor. Springs pull their size and place towards random targets, a step at a
/// press of "Generate". All effects of this class share the springs.
class patMorphingEffect : public AnchoredEffect {
public:
    const EffectDeclaration& declaration() const override;
    void awakeFromNib() override;
    std::shared_ptr<BaseEffect> mycopy() const override;

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
    double proportion() const { return m_proportion; }

    void changePatCount(EffectControl* sender) { change(&m_count, sender); }
    void setchangePatCountSender(int count, EffectControl* sender) { restore(&m_count, count, sender); }
    void changePatColor(EffectControl* sender) { change(&m_patColor, sender); }
    void setchangePatColorSender(CIColor color, EffectControl* sender) { restore(&m_patColor, color, sender); }
    void changeLineWidth(EffectControl* sender) { change(&m_lineWidth, sender); }
    void setchangeLineWidthSender(double width, EffectControl* sender) { restore(&m_lineWidth, width, sender); }
    void changeProportion(EffectControl* sender) { change(&m_proportion, sender); }
    void setchangeProportionSender(double value, EffectControl* sender) { restore(&m_proportion, value, sender); }

protected:
    std::shared_ptr<BaseEffect> init() const override { return std::make_shared<patMorphingEffect>(); }

private:
    CIColor m_patColor{0, 0, 0, 0};
    int m_count = 0; // ellipses
    double m_lineWidth = 0; // picture pixels
    double m_proportion = 0; // width of an ellipse / its height
};
