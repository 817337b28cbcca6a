// Patches of color.
#pragma once

#include "effects2d/LeveledEffect.h"

/// Noise whose pixels are copied to their neighbors thousands of times, stretched over the canvas.
class patchWorkEffect : public LeveledEffect {
public:
    void awakeFromNib() override;
    std::shared_ptr<BaseEffect> mycopy() const override;
    std::string className() const override { return "patchWorkEffect"; }

    void drawMyself(quartz::Context& context, const QRectF& rect) override;
    void drawPatchwork(quartz::Context& context, const QRectF& rect);

protected:
    void buildControls(EffectPanel& panel) override;
    std::shared_ptr<BaseEffect> init() const override { return std::make_shared<patchWorkEffect>(); }
};
