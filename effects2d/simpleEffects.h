// Many random shapes of one kind.
#pragma once

#include "effects2d/GeneratedEffect.h"

/// Fills the canvas with rectangles, circles, curves and other simple objects.
class simpleEffects : public GeneratedEffect {
public:
    void awakeFromNib() override;
    std::shared_ptr<BaseEffect> mycopy() const override;
    std::string className() const override { return "simpleEffects"; }
    void read(const CIDictionary& dictionary) override;
    CIDictionary save() const override;

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
    int objectCount() const { return m_object_count; }

    void changeObjectType(EffectControl* sender);
    void setObjectTypeSender(int kind, EffectControl* sender);
    void changeBgColor(EffectControl* sender) override;
    void setBgColorSender(CIColor color, EffectControl* sender);
    void useBgImage(EffectControl* sender) override;
    void setUseBgImageSender(bool use, EffectControl* sender);
    void changeOpacity(EffectControl* sender) override;
    void setChangOpacitySender(float percent, EffectControl* sender);
    void changeObjectCount(EffectControl* sender);
    void setChangObjCountSender(int count, EffectControl* sender);

protected:
    void buildControls(EffectPanel& panel) override;
    std::shared_ptr<BaseEffect> init() const override { return std::make_shared<simpleEffects>(); }

private:
    int m_drawObj = 0; // the kind, 0 to 7
    int m_object_count = 0;
};
