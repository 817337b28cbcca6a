// Colored waves.
#pragma once

#include "effects2d/LeveledEffect.h"

/// Each color channel is the sum of two waves along x and two along y, with random phases.
class plasmaEffect : public LeveledEffect {
public:
    const EffectDeclaration& declaration() const override;

    /// The copy has phases of its own.
    std::shared_ptr<BaseEffect> mycopy() const override;

    /// Fills the tables and picks new random phases.
    void setupPlazma();
    void makeImageEffect() override;
    void drawMyself(quartz::Context& context, const QRectF& rect) override;
    void drawPlazma(quartz::Context& context, const QRectF& rect);

protected:
    std::shared_ptr<BaseEffect> init() const override { return std::make_shared<plasmaEffect>(); }

private:
    static constexpr int kLargestSide = 600; // pixels

    void movePhases();

    std::array<int, 2000> wave{}, wave2{}; // heights, with a period of 720 and of 360 pixels
    std::array<int, 1024> luma{}; // brightness of a sum of heights
    int pos[3][2][2]{}; // phases: channel, axis, wave
    int cWaves[kLargestSide][3][2]{}; // sums of both waves: coordinate, channel, axis
};
