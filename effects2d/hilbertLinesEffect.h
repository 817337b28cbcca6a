// A space-filling curve.
#pragma once

#include "effects2d/LeveledEffect.h"

/// Hilbert's curve, segment by segment, over a square larger than the canvas.
class hilbertLinesEffect : public LeveledEffect {
public:
    const EffectDeclaration& declaration() const override;

    void drawMyself(quartz::Context& context, const QRectF& rect) override;
    void drawHilbertRect(quartz::Context& context, const QRectF& rect);

    // The curve's four shapes: open upwards, to the right, and so on. Each draws nothing below level 1. Only while
    // `drawHilbertRect` runs.
    void hilbertU(int level);
    void hilbertD(int level);
    void hilbertC(int level);
    void hilbertA(int level);
    /// Sets the pen down.
    void goToXY(float newX, float newY);
    /// Draws one segment from the pen, and moves the pen along.
    void lineRel(double dx, double dy);

protected:
    std::shared_ptr<BaseEffect> init() const override { return std::make_shared<hilbertLinesEffect>(); }

private:
    void pickColor();

    quartz::Context* m_context = nullptr; // while drawing
    int dist = 0; // length of a segment
    float x = 0, y = 0; // the pen
};
