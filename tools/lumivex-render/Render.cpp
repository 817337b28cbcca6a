#include "tools/lumivex-render/Render.h"

#include "tools/lumivex-render/InputValues.h"

#include "platform/coreimage/CIContext.h"
#include "platform/coreimage/Fitting.h"
#include "platform/imageio/PictureWriter.h"
#include "platform/imageio/reader_process/ReaderProcess.h"

#include <algorithm>
#include <cctype>
#include <chrono>
#include <cmath>

namespace {

constexpr double kMaxOutputPixels = 500e6;
constexpr double kFarthest = 1e8; // output pixels from the origin; beyond it whole numbers run out
constexpr CIRect kFallbackRect{0, 0, 512, 512};

const CIInputAttributes& inputNamed(const CIFilter& filter, const std::string& key)
{
    if (const CIInputAttributes* input = filter.attributesForKey(key))
        return *input;
    throw UsageError(filter.name() + " has no input '" + key + "'");
}

/// What the command line leaves open suits the picture; without one it suits the rectangle, and pictures stay missing.
void fit(CIFilter& filter, const CIRect& otherwise)
{
    CIImage picture = filter.valueForKey("inputImage").toImage();
    if (picture.isNull())
        picture = filter.valueForKey("inputBackgroundImage").toImage();
    const bool isPictureGiven = !picture.isNull();
    if (!isPictureGiven)
        picture = CIImage::fromColor(CIColor(0, 0, 0, 1)).cropped(otherwise);
    for (const auto& [key, value] : ci::fittedValues(filter, picture))
        if (!value.isImage() || (isPictureGiven && !filter.valueForKey(key).isImage()))
            filter.setValueForKey(value, key);
}

/// Sets every input that was given, and the others if they are to fit; answers the format that keeps the precision of
/// the pictures.
CIFormat setInputs(CIFilter& filter, const Arguments& arguments)
{
    CIFormat format = CIFormat::RGBA8;
    filter.setDefaults();
    for (const auto& [key, file] : arguments.images) {
        if (!inputNamed(filter, key).isImage())
            throw UsageError(key + " is not a picture; use --set " + key + "=value");
        const Result<CIBitmap> bitmap = ReaderProcess(std::filesystem::path(file)).readPicture();
        if (!bitmap)
            throw UsageError(key + ": " + bitmap.message());
        if (bitmap->format() == CIFormat::RGBA16 || bitmap->format() == CIFormat::RGBAf)
            format = CIFormat::RGBA16;
        filter.setValueForKey(CIImage::fromBitmap(*bitmap), key);
    }
    if (arguments.isFitted)
        fit(filter, arguments.rect.value_or(kFallbackRect));
    for (const auto& [key, text] : arguments.values)
        filter.setValueForKey(inputValue(inputNamed(filter, key), text), key);
    return format;
}

PictureFormat formatToWrite(const std::filesystem::path& output)
{
    std::string extension = output.extension().string();
    if (extension.empty())
        return PictureFormat::Png;
    extension.erase(0, 1);
    std::ranges::transform(extension, extension.begin(), [](unsigned char c) { return char(std::tolower(c)); });
    const FileFormat* format = formatOfExtension(extension);
    if (!format || format->isIcon || !canWrite(*format))
        throw UsageError("'." + extension + "' files can't be written; use .png, .jpg or .tiff");
    return format->format;
}

std::string missingImages(const CIFilter& filter)
{
    std::string keys;
    for (const std::string& key : filter.inputKeys())
        if (filter.attributesForKey(key)->isImage() && !filter.valueForKey(key).isImage())
            keys += (keys.empty() ? "" : ", ") + key;
    return keys;
}

CIRect rectToRender(const CIFilter& filter, const CIImage& image, const Arguments& arguments)
{
    if (arguments.rect)
        return *arguments.rect;
    if (const CIRect extent = image.extent(); !extent.isInfinite())
        return extent;
    const CIRect source = filter.valueForKey("inputImage").toImage().extent();
    return source.isInfinite() || source.isEmpty() ? kFallbackRect : source;
}

CIImage outputOf(const CIFilter& filter)
{
    CIImage image = filter.outputImage();
    if (image.isNull()) {
        const std::string missing = missingImages(filter);
        throw UsageError(filter.name() + " makes no image of these inputs"
            + (missing.empty() ? "" : "; pictures are missing: " + missing));
    }
    return image;
}

/// Each run makes its recipe anew and draws it into the same pixels.
RenderTimes timeRenders(
    const CIContext& context, const CIFilter& filter, CIBitmap& target, const CIRect& rect, const Arguments& arguments)
{
    const int left = int(std::floor(rect.left() * arguments.scale));
    const int top = int(std::ceil(rect.top() * arguments.scale));
    std::vector<double> times;
    for (int run = 0; run < arguments.repeat; ++run) {
        const auto start = std::chrono::steady_clock::now();
        context.renderInto(target, left, top, outputOf(filter), arguments.scale);
        times.push_back(std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start).count());
    }
    std::ranges::sort(times);
    const std::size_t middle = times.size() / 2;
    const double median = times.size() % 2 ? times[middle] : (times[middle - 1] + times[middle]) / 2;
    return {median, times.front(), times.back()};
}

} // namespace

std::shared_ptr<CIFilter> filterNamed(const std::string& name)
{
    if (auto filter = CIFilter::filterWithName(name))
        return filter;
    throw UsageError("there is no filter '" + name + "'; --list shows all");
}

std::optional<RenderTimes> render(const Arguments& arguments)
{
    const auto filter = filterNamed(arguments.filter);
    const PictureFormat fileFormat = formatToWrite(arguments.output);
    const CIFormat format = setInputs(*filter, arguments);
    const CIImage image = outputOf(*filter);
    const CIRect rect = rectToRender(*filter, image, arguments);
    if (rect.isEmpty())
        throw UsageError("the result has no pixels");
    if (const CIRect world{-kFarthest, -kFarthest, 2 * kFarthest, 2 * kFarthest};
        !world.contains(CIRect{rect.x * arguments.scale, rect.y * arguments.scale, rect.width * arguments.scale,
            rect.height * arguments.scale}))
        throw UsageError("the output lies too far from the origin");
    if (rect.width * rect.height * arguments.scale * arguments.scale > kMaxOutputPixels)
        throw UsageError("the output would have more than 500 million pixels; use --rect or --scale");
    const CIContext context;
    CIBitmap bitmap = context.render(image, rect, arguments.scale, format);
    if (bitmap.isNull())
        throw UsageError("there is not enough memory for the output");
    if (!arguments.output.empty())
        if (const Result<void> written = writePicture(bitmap, arguments.output, {.format = fileFormat}); !written)
            throw UsageError(written.message());
    if (arguments.repeat == 0)
        return std::nullopt;
    return timeRenders(context, *filter, bitmap, rect, arguments);
}
