#include "platform/chain/Layers.h"

#include "platform/chain/Baking.h"
#include "platform/chain/FilterChain.h"

#include <algorithm>
#include <cmath>

namespace {

CIImage made(const char* filterName, const CIDictionary& values)
{
    const std::shared_ptr<CIFilter> filter = CIFilter::filterWithName(filterName);
    filter->setDefaults();
    for (const auto& [key, value] : values)
        filter->setValueForKey(value, key);
    return filter->outputImage();
}

bool isUsable(const CIRect& extent) { return !extent.isEmpty() && !extent.isInfinite(); }

bool isWritten(const CIInputAttributes& input)
{
    return input.kind == InputKind::String || input.kind == InputKind::AttributedString
        || input.kind == InputKind::Data;
}

/// Maps one rectangle onto the other.
CIAffineTransform between(const CIRect& from, const CIRect& to)
{
    return CIAffineTransform::translation(-from.x, -from.y)
        .then(CIAffineTransform::scaling(to.width / from.width, to.height / from.height))
        .then(CIAffineTransform::translation(to.x, to.y));
}

CIRect frameOf(CIPoint size, const LayerPlace& place)
{
    const double width = size.x * place.scale, height = size.y * place.scale;
    return {place.center.x - width / 2, place.center.y - height / 2, width, height};
}

CIPoint sizeOf(const CIRect& extent) { return {extent.width, extent.height}; }

LayerPlace placeOf(const CIFilter& filter, const std::string& inputKey, const CIRect& extent)
{
    const CIValue noted = filter.valueForKey(placeKey(inputKey));
    return noted.isVector() ? LayerPlace(noted.toVector()) : LayerPlace(extent.center(), 1);
}

Placing placingOf(const CIFilter& filter, const std::string& inputKey)
{
    return Placing(std::clamp(int(filter.valueForKey(placingKey(inputKey)).toDouble()), 0, int(Placing::Free)));
}

bool isFree(const CIFilter& filter, const std::string& inputKey)
{
    const Placing placing = placingOf(filter, inputKey);
    return placing == Placing::Free || placing == Placing::Tile;
}

CIImage placedPicture(const CIImage& second, Placing placing, const LayerPlace& place, const CIRect& picture)
{
    const CIRect own = second.extent();
    if (placing == Placing::Own || !isUsable(own) || !isUsable(picture))
        return second;
    const double across = picture.width / own.width, up = picture.height / own.height;
    CIRect target = frameOf(sizeOf(own), place);
    if (placing == Placing::Stretch)
        target = picture;
    else if (placing == Placing::Fit || placing == Placing::Fill)
        target = frameOf(
            sizeOf(own), {picture.center(), placing == Placing::Fit ? std::min(across, up) : std::max(across, up)});
    const CIAffineTransform transform = between(own, target);
    if (placing == Placing::Tile)
        return made("CIAffineTile", {{"inputImage", second}, {"inputTransform", transform}}).cropped(picture);
    const CIImage moved = second.transformed(transform);
    return placing == Placing::Free ? moved : moved.cropped(picture);
}

constexpr double kTextSlack = 8; // px by which scaled letters are wider than letters of that size

/// Each pixel of a bitmap becomes so many in a square.
CIImage enlarged(const CIImage& image, int times)
{
    constexpr int kLongest = 8192; // px; larger squares have soft edges
    const CIBitmap* bitmap = bitmapOf(image);
    if (!bitmap || bitmap->format() != CIFormat::RGBA8 || times < 2
        || times * std::max(bitmap->width(), bitmap->height()) > kLongest)
        return image;
    CIBitmap large(times * bitmap->width(), times * bitmap->height(), CIFormat::RGBA8, bitmap->alpha());
    for (int y = 0; y < large.height(); ++y) {
        const auto from = bitmap->row<std::uint32_t>(y / times);
        const auto to = large.mutableRow<std::uint32_t>(y);
        for (std::size_t x = 0; x < to.size(); ++x)
            to[x] = from[x / std::size_t(times)];
    }
    return CIImage::fromBitmap(large);
}

bool isScalable(const CIFilter& filter) { return filter.attributesForKey("inputScaleFactor"); }

/// What the generator draws, where it has its place. Text is written larger, so that it stays sharp, and the squares of
/// barcodes stay squares.
CIImage placedDrawing(const CIFilter& filter, const CIRect& picture)
{
    CIImage drawing = filter.outputImage();
    const std::vector<FreeLayer> layers = freeLayers(filter, picture);
    if (layers.empty() || filter.valueForKey(layers.front().placeKey).isNothing())
        return drawing;
    const CIRect frame = layers.front().frame();
    const double scale = layers.front().place.scale;
    if (isScalable(filter)) {
        CIFilter larger = filter;
        larger.setValueForKey(filter.valueForKey("inputScaleFactor").toDouble() * scale, "inputScaleFactor");
        drawing = larger.outputImage();
    } else {
        drawing = enlarged(drawing, int(scale));
    }
    const CIRect own = drawing.extent();
    if (!isUsable(own))
        return drawing;
    // Text has a largest size, beyond which its pixels are enlarged.
    const CIRect target(std::round(frame.x), std::round(frame.y), frame.width, frame.height);
    const bool isLargeEnough = std::abs(own.width - frame.width) < kTextSlack;
    return drawing.transformed(
        isLargeEnough ? CIAffineTransform::translation(target.x - own.x, target.y - own.y) : between(own, target));
}

CIImage colored(const CIFilter& filter, const CIImage& drawing)
{
    const CIValue color = filter.valueForKey(kLayerColorKey);
    return drawing && color.isColor() ? made("CISourceInCompositing",
               {{"inputImage", CIImage::fromColor(color.toColor())}, {"inputBackgroundImage", drawing}})
                                      : drawing;
}

} // namespace

std::string placingKey(const std::string& inputKey) { return "layerPlacing:" + inputKey; }
std::string placeKey(const std::string& inputKey) { return "layerPlace:" + inputKey; }

std::vector<std::string> noteKeys(const CIFilter& filter)
{
    std::vector<std::string> keys{kLayerAmountKey, kLayerColorKey, placeKey(kGeneratedLayer)};
    for (const std::string& key : filter.inputKeys()) {
        keys.push_back(placingKey(key));
        keys.push_back(placeKey(key));
    }
    std::erase_if(keys, [&](const std::string& key) { return filter.valueForKey(key).isNothing(); });
    return keys;
}

bool takesKey(const CIFilter& filter, const std::string& key)
{
    return filter.attributesForKey(key) || key.starts_with("layer");
}

CIRect FreeLayer::frame() const { return frameOf(size, place); }

// --- what there is ---

bool drawsLayer(const CIFilter& filter)
{
    const std::vector<std::string> keys = filter.inputKeys();
    return !filter.attributesForKey("inputImage")
        && std::ranges::any_of(keys, [&](const std::string& key) { return isWritten(*filter.attributesForKey(key)); });
}

bool blendsPictures(const CIFilter& filter) { return pictureKey(filter) == std::string("inputBackgroundImage"); }

bool hasLayerAmount(const CIFilter& filter)
{
    return (blendsPictures(filter) || drawsLayer(filter)) && !filter.attributesForKey("inputAmount");
}

std::vector<std::string> placedInputs(const CIFilter& filter)
{
    std::vector<std::string> keys = filter.inputKeys();
    std::erase_if(keys, [&](const std::string& key) {
        const CIInputAttributes& input = *filter.attributesForKey(key);
        const bool isTable = input.automatic == Automatic::ShadingEMap || input.automatic == Automatic::Ramp
            || input.meaning == Meaning::Palette || input.meaning == Meaning::SmallPicture;
        return input.kind != InputKind::Image || isTable || key == pictureKey(filter);
    });
    return keys;
}

std::optional<std::string> secondPictureKey(const CIFilter& filter)
{
    const std::vector<std::string> keys = placedInputs(filter);
    return keys.empty() ? std::nullopt : std::optional(keys.front());
}

bool hasFreeLayers(const CIFilter& filter)
{
    return drawsLayer(filter)
        || std::ranges::any_of(placedInputs(filter), [&](const std::string& key) { return isFree(filter, key); });
}

std::vector<FreeLayer> freeLayers(const CIFilter& filter, const CIRect& picture)
{
    std::vector<FreeLayer> layers;
    if (!isUsable(picture))
        return layers;
    if (drawsLayer(filter)) {
        const CIRect extent = filter.outputImage().extent();
        LayerPlace place = placeOf(filter, kGeneratedLayer, extent);
        const bool isWhole = !isScalable(filter);
        if (isWhole && place.scale > 1)
            place.scale = std::round(place.scale);
        if (isUsable(extent))
            layers.push_back({placeKey(kGeneratedLayer), sizeOf(extent), place, isWhole});
        return layers;
    }
    for (const std::string& key : placedInputs(filter)) {
        const CIRect extent = filter.valueForKey(key).toImage().extent();
        if (isFree(filter, key) && isUsable(extent))
            layers.push_back({placeKey(key), sizeOf(extent), placeOf(filter, key, extent), false});
    }
    return layers;
}

LayerPlace fittedPlace(CIPoint size, const CIRect& picture)
{
    return {picture.center(), std::min(picture.width / size.x, picture.height / size.y)};
}

void fitLayers(CIFilter& filter, const CIRect& picture)
{
    constexpr double kShare = 0.6; // of the picture's width or height
    if (!drawsLayer(filter))
        return;
    filter.setValueForKey({}, placeKey(kGeneratedLayer));
    for (const FreeLayer& layer : freeLayers(filter, picture)) {
        LayerPlace place = fittedPlace(layer.size, picture);
        place.scale *= kShare;
        filter.setValueForKey(place.vector(), layer.placeKey);
    }
}

// --- what becomes of it ---

CIImage layeredOutput(const CIFilter& filter, const CIRect& picture)
{
    if (drawsLayer(filter))
        return colored(filter, placedDrawing(filter, picture));
    CIFilter placed = filter;
    for (const std::string& key : placedInputs(filter))
        if (const CIImage second = filter.valueForKey(key).toImage())
            placed.setValueForKey(
                placedPicture(second, placingOf(filter, key), placeOf(filter, key, second.extent()), picture), key);
    return placed.outputImage();
}

CIImage mixedByAmount(const CIFilter& filter, const CIImage& result, const CIImage& picture)
{
    const CIValue amount = filter.valueForKey(kLayerAmountKey);
    if (!amount.isNumber() || !result || !picture)
        return result;
    return made("CIMix", {{"inputImage", result}, {"inputBackgroundImage", picture}, {"inputAmount", amount}});
}
