// The common shape of the effects that draw on a canvas.
#pragma once

#include "effects2d/BaseEffect.h"
#include "effects2d/EffectControl.h"
#include "platform/foundation/NotificationCenter.h"
#include "platform/foundation/UndoManager.h"
#include "platform/quartz/Context.h"

#include <functional>

class EffectPanel;

/// Draws a layer on a canvas of the picture's size (726 x 544 without one) and lays it over the background: the
/// picture, if wanted, tinted with a color. A generator adds its parameters, its controls and the drawing.
///
/// Each parameter has a control action `change…(sender)` and an undo target that takes the value and the control.
class GeneratedEffect : public BaseEffect {
public:
    static constexpr QSizeF kCanvasWithoutPicture{726, 544};

    void initEffect() override;
    void clearEffect() override;
    void loadImage() override;
    void reloadImage() override;
    /// Lets go of the picture.
    void clearFilter();

    /// Draws the layer anew. What was there stays when it can't be made.
    virtual void makeImageEffect();
    /// Draws the effect into `rect`, which starts at the origin.
    virtual void drawMyself(quartz::Context& context, const QRectF& rect) = 0;
    /// The button "Generate".
    virtual void regenerate(EffectControl* sender);

    CIImage getDrawImage() override;
    LaterImage laterDrawImage() override;
    QImage drawPart(const quartz::Part& part) override;
    QSizeF drawImageSize() override;

    void setUpControlsView() override;
    void read(const CIDictionary& dictionary) override;
    CIDictionary save() const override;

    // Plain setters, which neither register undo nor draw
    void setUseBackImage(bool use) { m_useBackImage = use; }
    void setBgColor(const CIColor& color) { m_bgColor = color; }
    void seOpacity(float percent) { m_opacity = percent; }

    bool usesBackImage() const { return m_useBackImage; }
    CIColor bgColor() const { return m_bgColor; }
    float opacity() const { return m_opacity; }
    /// The layer; null before the first drawing.
    const quartz::Drawing* effectImage() const { return m_effectImage.get(); }

    // Control actions and undo targets
    virtual void changeBgColor(EffectControl* sender);
    void setchangeBgColorSender(CIColor color, EffectControl* sender);
    virtual void useBgImage(EffectControl* sender);
    void setuseBgImageSender(bool use, EffectControl* sender);
    virtual void changeOpacity(EffectControl* sender);
    void setchangeOpacitySender(float percent, EffectControl* sender);

protected:
    /// What a change of a parameter asks for.
    enum class Redraw { Composite, Layer };

    /// Adds the controls in their order.
    virtual void buildControls(EffectPanel&) { }
    /// The rows that (nearly) every generator begins with: background color, background image, opacity.
    void addCommonControls(EffectPanel& panel, const QString& opacityLabel);
    void addGenerateButton(EffectPanel& panel);

    /// Fetches the picture and draws the layer, the first time.
    void prepareToDraw();
    QSizeF canvasSize() const; // the picture's, or 726 x 544
    void setLayer(quartz::Drawing layer);

    /// A control's connection to an action of this effect; does nothing when the effect is gone.
    template <class Effect>
    std::function<void(EffectControl*)> action(void (Effect::*act)(EffectControl*));

    /// What an action does: registers the undo target with the old value and takes the new one from the control.
    template <class Owner, class Effect, class T>
    void changeParameter(
        T Owner::*field, void (Effect::*undoTarget)(T, EffectControl*), EffectControl* sender, Redraw redraw);
    /// What an undo target does: registers itself with the value it replaces, and shows the new one in the control.
    template <class Owner, class Effect, class T>
    void restoreParameter(T Owner::*field, T value, void (Effect::*undoTarget)(T, EffectControl*),
        EffectControl* sender, Redraw redraw, const char* notification = "UpdateCustomView");

    static void post(const char* notification = "UpdateCustomView");

    bool m_useBackImage = false; // lay the effect over the picture
    std::shared_ptr<const quartz::Drawing> m_effectImage; // the layer drawn last
    CIColor m_bgColor{0, 0, 0, 0};
    float m_opacity = 0; // of the layer, percent

private:
    /// After the caption of the control.
    static void nameUndoStep(const EffectControl* sender);
    template <class Effect, class T>
    void registerUndo(void (Effect::*undoTarget)(T, EffectControl*), T value, EffectControl* sender);
    /// All that the finished picture is made of, apart from the effect.
    struct Composition {
        QSizeF canvas;
        CIImage back; // null when the picture isn't wanted
        CIColor tint;
        float opacity; // percent
        QImage composite(const quartz::Part& part, const QImage& back, const QImage& layer) const;
        CIImage drawn(const quartz::Drawing& layer, CIRenderControl* control) const;
    };
    Composition composition() const;
    bool showsBackImage() const { return m_useBackImage && !m_image.isNull(); }

    /// What the screen showed last, so that a new opacity or tint needs no new drawing.
    struct Shown {
        quartz::Part part;
        QImage pixels;
    };
    Shown m_shownBack, m_shownLayer;
};

template <class Effect>
std::function<void(EffectControl*)> GeneratedEffect::action(void (Effect::*act)(EffectControl*))
{
    return [weak = weak_from_this(), act](EffectControl* sender) {
        if (const std::shared_ptr<BaseEffect> effect = weak.lock())
            (static_cast<Effect&>(*effect).*act)(sender);
    };
}

template <class Effect, class T>
void GeneratedEffect::registerUndo(void (Effect::*undoTarget)(T, EffectControl*), T value, EffectControl* sender)
{
    if (UndoManager* undo = undoManager())
        undo->registerUndoWithTarget(static_cast<BaseEffect*>(this),
            [effect = shared_from_this(), undoTarget, value, sender = QPointer(sender)] {
                (static_cast<Effect&>(*effect).*undoTarget)(value, sender);
            });
    nameUndoStep(sender);
}

template <class Owner, class Effect, class T>
void GeneratedEffect::changeParameter(
    T Owner::*field, void (Effect::*undoTarget)(T, EffectControl*), EffectControl* sender, Redraw redraw)
{
    T& parameter = static_cast<Effect&>(*this).*field;
    registerUndo(undoTarget, parameter, sender);
    parameter = parameterValue<T>(sender->value());
    if (redraw == Redraw::Layer)
        makeImageEffect();
    post();
}

template <class Owner, class Effect, class T>
void GeneratedEffect::restoreParameter(T Owner::*field, T value, void (Effect::*undoTarget)(T, EffectControl*),
    EffectControl* sender, Redraw redraw, const char* notification)
{
    T& parameter = static_cast<Effect&>(*this).*field;
    registerUndo(undoTarget, parameter, sender);
    parameter = value;
    if (sender)
        sender->setValue(value);
    if (redraw == Redraw::Layer)
        makeImageEffect();
    post(notification);
}

/// Takes over a stored parameter if it is there.
template <class T>
void readParameter(const CIDictionary& dictionary, const char* key, T& field)
{
    const auto found = dictionary.find(key);
    if (found != dictionary.end())
        field = parameterValue<T>(found->second);
}
