// A star-shaped light.
#pragma once

#include "effects2d/BurstEffect.h"

/// Bright spikes of random lengths around the anchor, on black.
class flareEffect : public BurstEffect {
public:
    const EffectDeclaration& declaration() const override;

    void makeImageEffect() override { makeReducedImageEffect(150); }
    void drawMyself(quartz::Context& context, const QRectF& rect) override;
    void drawFlareRect(quartz::Context& context, const QRectF& rect);

protected:
    std::shared_ptr<BaseEffect> init() const override { return std::make_shared<flareEffect>(); }
};
