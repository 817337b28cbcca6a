// The common shape of the effects that draw on a canvas.
#pragma once

#include "effects2d/BaseEffect.h"
#include "platform/quartz/Context.h"

/// Draws a layer on a canvas of the picture's size (726 x 544 without one) and lays it over the background: the
/// picture, if wanted, tinted with a color. A generator adds its declaration and the drawing.
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
    /// The button "Generate". The sender may be null.
    virtual void regenerate(EffectControl* sender);

    CIImage getDrawImage() override;
    LaterImage laterDrawImage() override;
    QImage drawPart(const quartz::Part& part) override;
    QSizeF drawImageSize() override;

    // Plain setters, which neither register undo nor draw
    void setUseBackImage(bool use) { m_useBackImage = use; }
    void setBgColor(const CIColor& color) { m_bgColor = color; }
    void seOpacity(float percent) { m_opacity = percent; }

    CIColor bgColor() const { return m_bgColor; }
    float opacity() const { return m_opacity; }
    /// The layer; null before the first drawing.
    const quartz::Drawing* effectImage() const { return m_effectImage.get(); }

    // Control actions and undo targets
    void changeBgColor(EffectControl* sender) { change(&m_bgColor, sender); }
    void setchangeBgColorSender(CIColor color, EffectControl* sender) { restore(&m_bgColor, color, sender); }
    void useBgImage(EffectControl* sender) { change(&m_useBackImage, sender); }
    void setuseBgImageSender(bool use, EffectControl* sender) { restore(&m_useBackImage, use, sender); }
    void changeOpacity(EffectControl* sender) { change(&m_opacity, sender); }
    void setchangeOpacitySender(float percent, EffectControl* sender) { restore(&m_opacity, percent, sender); }

protected:
    // What (nearly) every generator begins with
    static EffectParameter backgroundColor(
        const CIColor& start = CIColor(1, 1, 1, 0.5), const char* undoneTells = nullptr);
    static EffectParameter backgroundImage();
    static EffectParameter layerOpacity(const char* label, double start);

    void parameterChanged(const ParameterFacts& facts) override;
    /// The parameters, and a button "Generate".
    void buildControls(EffectPanel& panel) override;

    /// Fetches the picture and draws the layer, the first time.
    void prepareToDraw();
    QSizeF canvasSize() const; // the picture's, or 726 x 544
    void setLayer(quartz::Drawing layer);

    bool m_useBackImage = false; // lay the effect over the picture
    std::shared_ptr<const quartz::Drawing> m_effectImage; // the layer drawn last
    CIColor m_bgColor{0, 0, 0, 0};
    float m_opacity = 0; // of the layer, percent

private:
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
