#include "effects2d/sketchEffect.h"

#include "platform/coreimage/CIFilter.h"

namespace {

constexpr int kBlurRadius = 10; // px

// Rec. 709 luminance of linear light, as a color-managed gray picture has it.
constexpr double kRedLuminance = 0.2126, kGreenLuminance = 0.7152, kBlueLuminance = 0.0722;

CIImage filtered(const char* filterName, std::initializer_list<std::pair<const char*, CIValue>> inputs)
{
    const std::shared_ptr<CIFilter> filter = CIFilter::filterWithName(filterName);
    if (!filter)
        return {};
    filter->setDefaults();
    for (const auto& [key, value] : inputs)
        filter->setValueForKey(value, key);
    return filter->outputImage();
}

} // namespace

const EffectDeclaration& sketchEffect::declaration() const
{
    static const EffectDeclaration declared{"sketchEffect", QT_TRANSLATE_NOOP("BaseEffect", "Sketch Effect"),
        QT_TRANSLATE_NOOP("BaseEffect", "Sketch Effect Generator"), kNotPlaced,
        {{"useBackImage", &sketchEffect::m_useBackImage, {},
            {.start = false,
                .redraw = ParameterFacts::Composite,
                .storage = ParameterFacts::NotStored,
                .copied = false}}}};
    return declared;
}

void sketchEffect::makeImageEffect() { m_sketch = convertImage(m_image); }

CIImage sketchEffect::getDrawImage()
{
    prepareToDraw();
    return m_sketch;
}

CIImage sketchEffect::convertImage(const CIImage& picture) const
{
    if (picture.isNull())
        return {};
    const CIImage gray = grayspace(picture);
    const CIImage blurredNegative = gaussian(invert(gray));
    const CIImage sketch = colorDodgeBgImage(blurredNegative, gray);
    return sketch.isNull() ? picture : sketch;
}

CIImage sketchEffect::grayspace(const CIImage& picture) const
{
    const CIVector luminance{kRedLuminance, kGreenLuminance, kBlueLuminance, 0};
    return filtered("CIColorMatrix",
        {{"inputImage", picture}, {"inputRVector", luminance}, {"inputGVector", luminance},
            {"inputBVector", luminance}});
}

CIImage sketchEffect::invert(const CIImage& picture) const
{
    return filtered("CIColorInvert", {{"inputImage", picture}});
}

CIImage sketchEffect::gaussian(const CIImage& picture) const
{
    const CIImage blurred = filtered("CIGaussianBlur", {{"inputImage", picture}, {"inputRadius", kBlurRadius}});
    return blurred.isNull() ? blurred : blurred.cropped(picture.extent());
}

CIImage sketchEffect::colorDodgeBgImage(const CIImage& picture, const CIImage& background) const
{
    if (picture.isNull() || background.isNull())
        return {};
    return filtered("CIColorDodgeBlendMode", {{"inputImage", picture}, {"inputBackgroundImage", background}});
}
