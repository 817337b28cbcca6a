// A burst of straight lines.
#pragma once

#include "effects2d/BurstEffect.h"

/// Lines in random colors from the anchor to random points.
class linesEffect : public BurstEffect {
public:
    void awakeFromNib() override;
    std::shared_ptr<BaseEffect> mycopy() const override;
    std::string className() const override { return "linesEffect"; }

    void makeImageEffect() override { makeReducedImageEffect(200); }
    void drawMyself(quartz::Context& context, const QRectF& rect) override;
    void devideLinesRect(quartz::Context& context, const QRectF& rect);

protected:
    void buildControls(EffectPanel& panel) override;
    std::shared_ptr<BaseEffect> init() const override { return std::make_shared<linesEffect>(); }
};
