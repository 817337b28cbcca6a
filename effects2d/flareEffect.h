// A star-shaped light.
#pragma once

#include "effects2d/BurstEffect.h"

/// Bright spikes of random lengths around the anchor, on black.
class flareEffect : public BurstEffect {
public:
    void awakeFromNib() override;
    std::shared_ptr<BaseEffect> mycopy() const override;
    std::string className() const override { return "flareEffect"; }

    void makeImageEffect() override { makeReducedImageEffect(150); }
    void drawMyself(quartz::Context& context, const QRectF& rect) override;
    void drawFlareRect(quartz::Context& context, const QRectF& rect);

protected:
    void buildControls(EffectPanel& panel) override;
    std::shared_ptr<BaseEffect> init() const override { return std::make_shared<flareEffect>(); }
};
