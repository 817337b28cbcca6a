// The picture as a pencil sketch.
#pragma once

#include "effects2d/GeneratedEffect.h"

/// Shows what a chain of filters makes of the picture, as it is: without controls, tint, opacity or random numbers.
class sketchEffect : public GeneratedEffect {
public:
    const EffectDeclaration& declaration() const override;

    void setUpControlsView() override { }
    void makeImageEffect() override;
    void drawMyself(quartz::Context&, const QRectF&) override { }
    CIImage getDrawImage() override;
    QImage drawPart(const quartz::Part& part) override { return BaseEffect::drawPart(part); }
    QSizeF drawImageSize() override
    {
        loadImage();
        return sizeOf(m_image);
    }

    /// The sketch; the picture itself when it can't be made, null without a picture.
    CIImage convertImage(const CIImage& picture) const;
    // The steps. Each answers a null image when it can't be made.
    CIImage grayspace(const CIImage& picture) const;
    CIImage invert(const CIImage& picture) const;
    CIImage gaussian(const CIImage& picture) const; // keeps the extent
    CIImage colorDodgeBgImage(const CIImage& picture, const CIImage& background) const;

protected:
    std::shared_ptr<BaseEffect> init() const override { return std::make_shared<sketchEffect>(); }

private:
    CIImage m_sketch;
};
