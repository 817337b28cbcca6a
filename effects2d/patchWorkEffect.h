// Patches of color.
#pragma once

#include "effects2d/LeveledEffect.h"

/// Noise whose pixels are copied to their neighbors thousands of times, stretched over the canvas.
class patchWorkEffect : public LeveledEffect {
public:
    const EffectDeclaration& declaration() const override;

    void drawMyself(quartz::Context& context, const QRectF& rect) override;
    void drawPatchwork(quartz::Context& context, const QRectF& rect);

protected:
    std::shared_ptr<BaseEffect> init() const override { return std::make_shared<patchWorkEffect>(); }
};
