// Many random shapes of one kind.
#pragma once

#include "effects2d/GeneratedEffect.h"

/// Fills the canvas with rectangles, circles, curves and other simple objects.
class simpleEffects : public GeneratedEffect {
public:
    const EffectDeclaration& declaration() const override;

    /// Draws nothing when the kind is unknown.
    void drawMyself(quartz::Context& context, const QRectF& rect) override;

    // One for each kind, in their order
    void rectanglesRect(quartz::Context& context, const QRectF& rect);
    void circlesRect(quartz::Context& context, const QRectF& rect);
    void bezierPathsRect(quartz::Context& context, const QRectF& rect);
    void trianglesRect(quartz::Context& context, const QRectF& rect);
    void flowersRect(quartz::Context& context, const QRectF& rect);
    void ballsRect(quartz::Context& context, const QRectF& rect);
    void lightsRect(quartz::Context& context, const QRectF& rect);
    void spinningSquaresRect(quartz::Context& context, const QRectF& rect);

    void setObjectMode(int kind) { m_drawObj = kind; }
    void seObjectCount(int count) { m_object_count = count; }
    int objectMode() const { return m_drawObj; }

    void changeObjectType(EffectControl* sender) { change(&m_drawObj, sender); }
    void setObjectTypeSender(int kind, EffectControl* sender) { restore(&m_drawObj, kind, sender); }
    void setBgColorSender(CIColor color, EffectControl* sender) { restore(&m_bgColor, color, sender); }
    void setUseBgImageSender(bool use, EffectControl* sender) { restore(&m_useBackImage, use, sender); }
    void setChangOpacitySender(float percent, EffectControl* sender) { restore(&m_opacity, percent, sender); }
    void changeObjectCount(EffectControl* sender) { change(&m_object_count, sender); }
    void setChangObjCountSender(int count, EffectControl* sender) { restore(&m_object_count, count, sender); }

protected:
    std::shared_ptr<BaseEffect> init() const override { return std::make_shared<simpleEffects>(); }

private:
    int m_drawObj = 0; // the kind, 0 to 7
    int m_object_count = 0;
};
