#include "platform/chain/FilterChain.h"

#include "platform/chain/Layers.h"
#include "platform/coreimage/Fitting.h"
#include "platform/foundation/Log.h"

#include <algorithm>

namespace {

constexpr double kLargestExcess = 1.3;

bool hasImage(const CIFilter& filter, std::string_view key)
{
    const CIInputAttributes* input = filter.attributesForKey(key);
    return input && input->isImage();
}

CIImage layOver(const CIImage& background, const CIImage& layer)
{
    const std::shared_ptr<CIFilter> over = CIFilter::filterWithName("CISourceOverCompositing");
    over->setDefaults();
    over->setValueForKey(background, "inputBackgroundImage");
    over->setValueForKey(layer, "inputImage");
    return over->outputImage();
}

CIImage croppedTo(const CIImage& image, const CIRect& rect)
{
    const std::shared_ptr<CIFilter> crop = CIFilter::filterWithName("CICrop");
    crop->setDefaults();
    crop->setValueForKey(image, "inputImage");
    crop->setValueForKey(CIVector(rect), "inputRectangle");
    return crop->outputImage();
}

} // namespace

const char* pictureKey(const CIFilter& filter)
{
    return hasImage(filter, "inputBackgroundImage") ? "inputBackgroundImage" : "inputImage";
}

void setupAllImageInputsToNotNil(CIFilter& filter, const CIImage& picture)
{
    for (const std::string& key : filter.inputKeys())
        if (hasImage(filter, key))
            filter.setValueForKey(picture, key);
}

void fitToPicture(CIFilter& filter, const CIImage& picture)
{
    const auto isChosen = [&](const CIValue& value) {
        const CIImage second = value.toImage();
        return (second && !second.isSameAs(picture)) || !value.toString().empty() || value.isDictionary();
    };
    for (const auto& [key, value] : ci::fittedValues(filter, picture))
        if (key != pictureKey(filter) && !isChosen(filter.valueForKey(key)))
            filter.setValueForKey(value, key);
    fitLayers(filter, picture.extent());
}

bool filterHasMissingImage(const CIFilter& filter)
{
    const std::string fedWithPicture = pictureKey(filter);
    const std::vector<std::string> keys = filter.inputKeys();
    return std::any_of(keys.begin(), keys.end(), [&](const std::string& key) {
        return key != fedWithPicture && hasImage(filter, key) && filter.valueForKey(key).isNothing();
    });
}

CIImage filteredPicture(CIFilter& filter, const CIImage& picture, CIPoint viewSize)
{
    std::vector<CIImage> layers;
    if (picture) {
        if (!filter.attributesForKey("inputImage"))
            layers.push_back(picture);
        else if (filter.attributesForKey("inputBackgroundImage"))
            filter.setValueForKey(picture, "inputBackgroundImage");
        else
            filter.setValueForKey(picture, "inputImage");
    }
    if (const CIInputAttributes* extent = filter.attributesForKey("inputExtent"); extent && extent->isVector())
        filter.setValueForKey(CIVector{0, 0, viewSize.x, viewSize.y}, "inputExtent");

    CIImage output = layeredOutput(filter, picture.extent());
    const CIRect whole = picture.extent();
    if (output && output.extent().width > kLargestExcess * whole.width
        && output.extent().height > kLargestExcess * whole.height)
        output = croppedTo(output, whole);
    if (layers.empty())
        return mixedByAmount(filter, output, picture);
    const CIImage background = foldedLayers(layers);
    return output ? mixedByAmount(filter, layOver(background, output), picture) : background;
}

bool isLargerThanPicture(const CIFilter& filter, const CIImage& result, const CIImage& picture)
{
    const auto categories = filter.attributes().find(kCIAttributeFilterCategories);
    if (!result || !picture || categories->second.toArray().front() == CIValue(kCICategoryGeometryAdjustment))
        return false;
    return !picture.extent().contains(result.extent());
}

CIImage filteredPictureOfSameSize(CIFilter& filter, const CIImage& picture, CIPoint viewSize)
{
    const CIImage result = filteredPicture(filter, picture, viewSize);
    if (!isLargerThanPicture(filter, result, picture))
        return result;
    const char* const key = pictureKey(filter);
    if (!filter.attributesForKey(key))
        return croppedTo(result, picture.extent());
    filter.setValueForKey(picture.clampedToExtent(), key);
    const CIImage endless = layeredOutput(filter, picture.extent());
    filter.setValueForKey(picture, key);
    return mixedByAmount(filter, croppedTo(endless, picture.extent()), picture);
}

CIImage foldedLayers(const std::vector<CIImage>& layers)
{
    if (layers.empty())
        return {};
    CIImage folded = layers.front();
    for (std::size_t i = 1; i < layers.size(); ++i) {
        folded = layOver(folded, layers[i]);
        qCInfo(lumivexLog) << "We Are here 1";
    }
    return folded;
}

CIImage overBlack(const CIImage& image)
{
    const std::shared_ptr<CIFilter> black = CIFilter::filterWithName("CIConstantColorGenerator");
    black->setDefaults();
    black->setValueForKey(CIColor(0, 0, 0, 1), "inputColor");
    return image ? layOver(black->outputImage(), image) : black->outputImage();
}
