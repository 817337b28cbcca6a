#include "app/catalogue/FilterMaker.h"

#include "platform/chain/FilterChain.h"
#include "platform/chain/Layers.h"

#include <optional>

namespace {

/// Rectangles without an end have no corners that could be dragged.
void boundRectangles(CIFilter& filter, const CIRect& picture)
{
    for (const std::string& key : filter.inputKeys())
        if (filter.attributesForKey(key)->kind == InputKind::Rectangle
            && filter.valueForKey(key).toVector().rect().isInfinite())
            filter.setValueForKey(CIVector(picture), key);
}

} // namespace

std::shared_ptr<CIFilter> FilterMaker::newFilter(const std::string& name, const CIImage& picture, const CIRect& view)
{
    std::shared_ptr<CIFilter> filter = CIFilter::filterWithName(name);
    if (filter) {
        filter->setDefaults();
        setupAllImageInputsToNotNil(*filter, picture);
        setAutomaticDefaults(*filter, view);
        if (secondPicture && blendsPictures(*filter)) {
            filter->setValueForKey(secondPicture, "inputImage");
            filter->setValueForKey(double(Placing::Fit), placingKey("inputImage"));
        }
        if (startsFitted)
            fitToPicture(*filter, picture);
        if (picture)
            boundRectangles(*filter, picture.extent());
    }
    return filter;
}

void FilterMaker::setAutomaticDefaults(CIFilter& filter, const CIRect& view)
{
    const auto value = [&](const CIInputAttributes& input) -> std::optional<CIValue> {
        switch (input.automatic) {
        case Automatic::Texture:
            return texture.image();
        case Automatic::AlphaEMap:
            return alphaemap.image();
        case Automatic::ShadingEMap:
            return shadingemap.image();
        case Automatic::Ramp:
            return ramp.image();
        case Automatic::Mask:
            return mask.image();
        case Automatic::ViewCenter:
            return CIVector{float(view.center().x), float(view.center().y)};
        case Automatic::None:
            break;
        }
        return input.automaticValue.isNothing() ? std::nullopt : std::optional(input.automaticValue);
    };
    for (const std::string& key : filter.inputKeys())
        if (const std::optional<CIValue> automatic = value(*filter.attributesForKey(key)))
            filter.setValueForKey(*automatic, key);
}
