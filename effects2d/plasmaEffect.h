// Colored waves.
#pragma once

#include "effects2d/LeveledEffect.h"

/// Each color channel is the sum of two waves along x and two along y, with random phases.
class plasmaEffect : public LeveledEffect {
public:
    void awakeFromNib() override;
    std::shared_ptr<BaseEffect> mycopy() const override;
    std::string className() const override { return "plasmaEffect"; }

    // Level and line width are not stored
    void read(const CIDictionary& dictionary) override { GeneratedEffect::read(dictionary); }
    CIDictionary save() const override { return GeneratedEffect::save(); }

    /// Fills the tables and picks new random phases.
    void setupPlazma();
    void makeImageEffect() override;
    void drawMyself(quartz::Context& context, const QRectF& rect) override;
    void drawPlazma(quartz::Context& context, const QRectF& rect);

protected:
    void buildControls(EffectPanel& panel) override;
    std::shared_ptr<BaseEffect> init() const override { return std::make_shared<plasmaEffect>(); }

private:
    static constexpr int kLargestSide = 600; // pixels

    void movePhases();

    std::array<int, 2000> wave{}, wave2{}; // heights, with a period of 720 and of 360 pixels
    std::array<int, 1024> luma{}; // brightness of a sum of heights
    int pos[3][2][2]{}; // phases: channel, axis, wave
    int cWaves[kLargestSide][3][2]{}; // sums of both waves: coordinate, channel, axis
};
