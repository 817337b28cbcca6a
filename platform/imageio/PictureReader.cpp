#include "platform/imageio/PictureReader.h"

#include "platform/imageio/DecodeInTime.h"
#include "platform/imageio/ImageLog.h"
#include "platform/imageio/InputReading.h"
#include "platform/imageio/PictureColor.h"
#include "platform/imageio/PictureLoad.h"
#include "platform/imageio/PictureSink.h"
#include "platform/imageio/RawReader.h"

#include <algorithm>
#include <new>

namespace {

using namespace imageio;

Failure damaged(const PictureInput& input, Reason reason = Reason::Damaged)
{
    imageLog(input.name() + " (" + input.format()->name + "): " + takeVipsError());
    return input.failure(reason);
}

Failure tooLarge(const PictureInput& input, int width, int height)
{
    return input.failure(Reason::TooLarge, std::to_string(width) + " × " + std::to_string(height));
}

/// The JPEG decoder fills up what is missing with grey, which makes a few bytes a picture of any size. Even a blank
/// picture takes a bit for every block of 64 pixels.
bool claimsTooMuch(const PictureInput& input, int width, int height)
{
    constexpr double kMaxPixelsPerByte = 64 * 8 * 4; // color at half the resolution takes hardly more; be generous
    constexpr double kHeaderBytes = 1000;
    return input.isOf(PictureFormat::Jpeg)
        && double(width) * height > kMaxPixelsPerByte * (double(input.size()) + kHeaderBytes);
}

/// Decoders hold some rows of all bands, of which at most four are shown: a few bytes of a file may claim a thousand.
bool hasTooManyBands(const VipsImagePtr& image)
{
    constexpr int kMostBands = 64; // some more than the files of layered editors have channels
    return vips_image_get_bands(image.get()) > kMostBands;
}

/// At most `maxSide` pixels on the longer side. Transparent pixels don't bleed into their neighbors.
VipsImagePtr reducedTo(VipsImagePtr image, int maxSide, bool isPremultiplied)
{
    const int longerSide = std::max(vips_image_get_width(image.get()), vips_image_get_height(image.get()));
    if (maxSide <= 0 || longerSide <= maxSide)
        return image;
    const double factor = double(maxSide) / longerSide;
    const auto resized = [factor](VipsImage* source) {
        return derive(
            [&](VipsImage** out) { return vips_resize(source, out, factor, "kernel", VIPS_KERNEL_LINEAR, nullptr); });
    };
    const int bands = vips_image_get_bands(image.get());
    if (isPremultiplied || (bands != 2 && bands != 4))
        return resized(image.get());
    const VipsBandFormat format = vips_image_get_format(image.get());
    const double fullAlpha = format == VIPS_FORMAT_UCHAR ? 255 : format == VIPS_FORMAT_USHORT ? 65535 : 1;
    image =
        derive([&](VipsImage** out) { return vips_premultiply(image.get(), out, "max_alpha", fullAlpha, nullptr); });
    if (image)
        image = resized(image.get());
    if (image)
        image = derive(
            [&](VipsImage** out) { return vips_unpremultiply(image.get(), out, "max_alpha", fullAlpha, nullptr); });
    return image ? derive([&](VipsImage** out) { return vips_cast(image.get(), out, format, nullptr); }) : nullptr;
}

Result<CIBitmap> decodeAs(const PictureInput& input, const ReadOptions& options, bool acceptsPart)
{
    OpenPicture picture = openPicture(input, options.maxSide, acceptsPart);
    if (!picture.image)
        return damaged(input, picture.refusal);
    const int width = vips_image_get_width(picture.image.get()), height = vips_image_get_height(picture.image.get());
    if (std::int64_t(width) * height > options.maxPixels)
        return tooLarge(input, width, height);
    if (hasTooManyBands(picture.image))
        return input.failure(Reason::StrangePixels);
    if (claimsTooMuch(input, width, height)) {
        imageLog(input.name() + " has too few bytes for its size.");
        return damaged(input);
    }
    auto [image, space] = toWorkingColor(std::move(picture.image));
    if (image)
        image = reducedTo(std::move(image), options.maxSide, picture.isPremultiplied);
    if (!image)
        return damaged(input);
    const CIAlpha alpha = picture.isPremultiplied ? CIAlpha::Premultiplied : CIAlpha::Straight;
    SinkResult pulled = pullIntoBitmap(image.get(), space, picture.orientation, alpha, options, acceptsPart);
    switch (pulled.end) {
    case SinkEnd::Complete:
        return std::move(pulled.bitmap);
    case SinkEnd::Damaged:
        return damaged(input);
    case SinkEnd::TimeOver:
        return input.failure(Reason::TookTooLong);
    case SinkEnd::Cancelled:
        return input.failure(Reason::GivenUp);
    }
    return damaged(input);
}

Result<CIBitmap> decode(const PictureInput& input, const ReadOptions& options)
{
    Result<CIBitmap> whole = decodeAs(input, options, false);
    const bool acceptsPart = options.isIncomplete && input.format()->readsParts;
    if (whole || !acceptsPart || whole.failure().reason != Reason::Damaged)
        return whole;
    Result<CIBitmap> part = decodeAs(input, options, true);
    if (!part)
        return whole;
    *options.isIncomplete = true;
    return part;
}

Result<CIBitmap> readChecked(const Result<PictureInput>& input, const ReadOptions& options)
{
    if (!input)
        return input.failure();
    if (!input->format())
        return input->failure(Reason::UnknownFormat);
    try {
        useVips();
        if (input->format()->isDrawing)
            return decodeInTime(*input, options, decode);
        return input->isOf(PictureFormat::CameraRaw) ? readRaw(*input, options) : decode(*input, options);
    } catch (const std::bad_alloc&) {
        return input->failure(Reason::NoMemoryToOpen);
    } catch (const std::exception& error) {
        imageLog(input->name() + ": " + error.what());
        return input->failure(Reason::CannotOpen);
    }
}

int bitsPerComponent(VipsImage* image)
{
    const auto format = vips_image_get_format(image);
    return vips_image_get_coding(image) == VIPS_CODING_NONE ? int(vips_format_sizeof(format)) * 8 : 16;
}

PictureInfo infoOf(const OpenPicture& picture, PictureFormat format)
{
    VipsImage* image = picture.image.get();
    PictureInfo info;
    info.width = vips_image_get_width(image);
    info.height = vips_image_get_height(image);
    if (picture.orientation >= 5)
        std::swap(info.width, info.height);
    info.bitsPerComponent = bitsPerComponent(image);
    info.isFloat = vips_band_format_isfloat(vips_image_get_format(image));
    info.hasAlpha = vips_image_hasalpha(image) && vips_image_get_coding(image) == VIPS_CODING_NONE;
    info.profileName = profileName(image);
    info.format = format;
    return info;
}

} // namespace

Result<CIBitmap> imageio::readPicture(const Result<PictureInput>& input, const ReadOptions& options)
{
    Result<CIBitmap> result = readChecked(input, options);
    if (!result)
        imageLog(result.message());
    return result;
}

Result<CIBitmap> readPicture(const std::filesystem::path& file, const ReadOptions& options)
{
    return imageio::readPicture(PictureInput::fromFile(file), options);
}

Result<CIBitmap> readPicture(std::span<const std::byte> content, const ReadOptions& options)
{
    return imageio::readPicture(PictureInput::fromMemory(content), options);
}

Result<PictureInfo> readPictureInfo(const std::filesystem::path& file)
{
    return imageio::readPictureInfo(PictureInput::fromFile(file));
}

Result<PictureInfo> imageio::readPictureInfo(const Result<PictureInput>& input)
{
    if (!input)
        return input.failure();
    if (!input->format())
        return input->failure(Reason::UnknownFormat);
    try {
        useVips();
        if (input->isOf(PictureFormat::CameraRaw))
            return readRawInfo(*input);
        const OpenPicture picture = openPicture(*input, 0);
        return picture.image ? Result<PictureInfo>(infoOf(picture, input->format()->format))
                             : damaged(*input, picture.refusal);
    } catch (const std::exception& error) {
        imageLog(input->name() + ": " + error.what());
        return input->failure(Reason::CannotOpen);
    }
}
