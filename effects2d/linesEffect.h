// A burst of straight lines.
#pragma once

#include "effects2d/BurstEffect.h"

/// Lines in random colors from the anchor to random points.
class linesEffect : public BurstEffect {
public:
    const EffectDeclaration& declaration() const override;

    void makeImageEffect() override { makeReducedImageEffect(200); }
    void drawMyself(quartz::Context& context, const QRectF& rect) override;
    void devideLinesRect(quartz::Context& context, const QRectF& rect);

protected:
    std::shared_ptr<BaseEffect> init() const override { return std::make_shared<linesEffect>(); }
};
