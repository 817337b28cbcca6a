#include "app/catalogue/FilterMaker.h"

#include "platform/chain/FilterChain.h"

#include <algorithm>
#include <initializer_list>
#include <string_view>

namespace {

const CIColor kHalfWhite(1, 1, 1, 0.5);
const CIColor kHalfBlack(0, 0, 0, 0.5);
const CIColor kHalfOrange(1, 0.5, 0, 0.5);
constexpr float kMinusQuarterPi = -0.7853982f;

bool isOneOf(std::string_view name, std::initializer_list<std::string_view> names)
{
    return std::find(names.begin(), names.end(), name) != names.end();
}

} // namespace

std::shared_ptr<CIFilter> FilterMaker::newFilter(const std::string& name, const CIImage& picture, const CIRect& view)
{
    const std::shared_ptr<CIFilter> filter = CIFilter::filterWithName(name);
    if (filter) {
        filter->setDefaults();
        setupAllImageInputsToNotNil(*filter, picture);
        setAutomaticDefaults(*filter, view);
    }
    return filter;
}

void FilterMaker::setAutomaticDefaults(CIFilter& filter, const CIRect& view)
{
    const std::string& name = filter.name();
    if (name == "CIGlassDistortion") {
        filter.setValueForKey(texture.image(), "inputTexture");
    } else if (name == "CIRippleTransition") {
        filter.setValueForKey(alphaemap.image(), "inputShadingImage");
    } else if (name == "CIPageCurlTransition") {
        filter.setValueForKey(alphaemap.image(), "inputShadingImage");
        filter.setValueForKey(kMinusQuarterPi, "inputAngle");
    } else if (name == "CIShadedMaterial") {
        filter.setValueForKey(shadingemap.image(), "inputShadingImage");
    } else if (name == "CIColorMap") {
        filter.setValueForKey(ramp.image(), "inputGradientImage");
    } else if (name == "CIDisintegrateWithMaskTransition") {
        filter.setValueForKey(mask.image(), "inputMaskImage");
    } else if (name == "CICircularWrap") {
        filter.setValueForKey(
            CIVector{float(view.x + view.width * 0.5), float(view.y + view.height * 0.5)}, "inputCenter");
    } else if (isOneOf(name,
                   {"CIGaussianGradient", "CILinearGradient", "CIRadialGradient", "CIStripesGenerator",
                       "CICheckerboardGenerator"})) {
        filter.setValueForKey(kHalfWhite, "inputColor0");
        filter.setValueForKey(kHalfBlack, "inputColor1");
    } else if (name == "CIConstantColorGenerator") {
        filter.setValueForKey(kHalfOrange, "inputColor");
    }
}
