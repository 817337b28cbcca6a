// The picture as a pencil sketch.
#pragma once

#include "effects2d/GeneratedEffect.h"

/// Shows what a chain of filters makes of the picture, as it is: without controls, tint, opacity or random numbers.
class sketchEffect : public GeneratedEffect {
public:
    void awakeFromNib() override;
    std::shared_ptr<BaseEffect> mycopy() const override { return copyWithZone(); }
    std::string className() const override { return "sketchEffect"; }
    // Only what every effect stores
    void read(const CIDictionary& dictionary) override { BaseEffect::read(dictionary); }
    CIDictionary save() const override { return BaseEffect::save(); }

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
