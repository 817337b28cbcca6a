// "Surface Rotate": the picture on a bent surface.
#pragma once

#include "effects3d/TurnedEffect.h"

/// A Bézier patch of 2 by 3 control points, turned with the mouse and bent with two sliders, filled or as a net of
/// lines, plain or tinted.
class EvalEffect : public TurnedEffect {
public:
    using Color = std::array<float, 4>;
    using Net = std::array<double, 24>; // 2 rows of 3 points (x, y, z, w)

    const EffectDeclaration& declaration() const override;

    void initEffect() override;
    void draw() override;
    void evalInit();
    void evalDraw();
    void RenderEval();
    void DrawMapEval2Dv(float du, float dv);

    // Plain setters, which neither register undo nor draw
    void setRotationE(const std::array<float, 4>& newRotation) { m_objectRotation = newRotation; }
    void setBorderColor(const Color& color) { m_borderColor = color; }
    void setFilledMode(bool filled) { m_polygonFilled = filled; }
    void setPoints2(const Net& net) { m_point2 = net; }
    void setDecalMode(float mode) { m_decal = mode; }
    void setDecalColor(const Color& color) { m_decalColor = color; }

    const std::array<float, 4>& objectRotation() const { return m_objectRotation; }
    bool polygonFilled() const { return m_polygonFilled; }
    const Net& points2() const { return m_point2; }
    float decal() const { return m_decal; }
    const Color& decalColor() const { return m_decalColor; }

    // Control actions and undo targets
    void changepoint5(EffectControl* sender) { change(&m_point2[kFirstCurve], sender); }
    void changepoint17(EffectControl* sender) { change(&m_point2[kSecondCurve], sender); }
    /// `index` is that of one of the two.
    void setPointsIdxSender(double value, int index, EffectControl* sender)
    {
        restore(&m_point2[std::size_t(index)], value, sender);
    }
    void changepoligonFilled(EffectControl* sender) { change(&m_polygonFilled, sender); }
    void setpolygonFilledSender(bool filled, EffectControl* sender) { restore(&m_polygonFilled, filled, sender); }
    void changeDecal(EffectControl* sender) { change(&m_decal, sender); }
    void changeM_DecalSender(float mode, EffectControl* sender) { restore(&m_decal, mode, sender); }
    void changeDecalColor(EffectControl* sender) { change(&m_decalColor, sender); }
    void setDecalColorSender(Color color, EffectControl* sender)
    {
        restore(&m_decalColor, CIVector{color[0], color[1], color[2], color[3]}, sender);
    }

protected:
    std::shared_ptr<BaseEffect> init() const override { return std::make_shared<EvalEffect>(); }
    Rotation& rotation() override { return m_objectRotation; }

private:
    static constexpr std::size_t kFirstCurve = 5; // y of the middle point of row 0
    static constexpr std::size_t kSecondCurve = 17; // of row 1

    bool isTinted() const;

    std::array<float, 4> m_objectRotation{};
    Color m_borderColor{}; // stored, but nothing has a border
    int m_borderSize = 4; // stored as well
    float m_decal = 0; // OpenGL's number of the texture environment
    Color m_decalColor{}; // of tinted surfaces
    bool m_polygonFilled = true;
    Net m_point2{};
};
