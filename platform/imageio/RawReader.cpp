#include "platform/imageio/RawReader.h"

#include "platform/imageio/ImageLog.h"
#include "platform/imageio/PictureSink.h"

#include <algorithm>

#include <libraw/libraw.h>

namespace imageio {

namespace {

/// `error` of LibRaw in the users' terms.
Failure failureOf(const PictureInput& input, int error, const ReadOptions& options = {})
{
    if (error == LIBRAW_CANCELLED_BY_CALLBACK)
        return input.failure(options.cancelled && *options.cancelled ? Reason::GivenUp : Reason::TookTooLong);
    imageLog(input.name() + ": LibRaw: " + libraw_strerror(error));
    if (error == LIBRAW_UNSUPPORTED_THUMBNAIL || error == LIBRAW_FILE_UNSUPPORTED)
        return input.failure(Reason::UnknownCamera);
    return input.failure(Reason::Damaged);
}

int open(LibRaw& raw, const PictureInput& input)
{
    if (!input.path().empty())
        return raw.open_file(input.path().c_str());
    return raw.open_buffer(const_cast<std::byte*>(input.memory().data()), input.memory().size());
}

/// LibRaw's flips are 3 (half turn), 5 and 6 (quarter turns); odd sums of bit 4 swap the sides.
bool swapsSides(const LibRaw& raw) { return raw.imgdata.sizes.flip & 4; }

struct Watch {
    const ReadOptions& options;
    std::chrono::steady_clock::time_point deadline;

    static int isOver(void* self, LibRaw_progress, int, int)
    {
        const auto& watch = *static_cast<Watch*>(self);
        return (watch.options.cancelled && watch.options.cancelled->load(std::memory_order_relaxed))
            || std::chrono::steady_clock::now() > watch.deadline;
    }
};

void setDeveloping(LibRaw& raw, bool halfSize)
{
    constexpr unsigned kMostMegabytes = 4096;
    auto& parameters = raw.imgdata.params;
    parameters.use_camera_wb = 1;
    parameters.output_color = 1; // sRGB
    parameters.output_bps = 16;
    parameters.gamm[0] = 1 / 2.4; // with a toe slope of 12.92: the sRGB curve
    parameters.gamm[1] = 12.92;
    parameters.half_size = halfSize;
#if LIBRAW_COMPILE_CHECK_VERSION_NOTLESS(0, 21)
    raw.imgdata.rawparams.max_raw_memory_mb = kMostMegabytes;
#else
    parameters.max_raw_memory_mb = kMostMegabytes;
#endif
}

/// Turns rows that hold packed RGB at their start into RGBA, from the end, in place.
void spreadRows(std::uint16_t* row, int width, int height)
{
    for (int y = 0; y < height; ++y, row += 4 * std::ptrdiff_t(width))
        for (std::size_t x = std::size_t(width); x-- > 0;) {
            const std::uint16_t red = row[3 * x], green = row[3 * x + 1], blue = row[3 * x + 2];
            row[4 * x] = red;
            row[4 * x + 1] = green;
            row[4 * x + 2] = blue;
            row[4 * x + 3] = 65535;
        }
}

Result<CIBitmap> developed(LibRaw& raw, const PictureInput& input, const ReadOptions& options)
{
    int width = 0, height = 0, colors = 0, bits = 0;
    raw.get_mem_image_format(&width, &height, &colors, &bits);
    if (width <= 0 || height <= 0 || colors != 3 || bits != 16)
        return input.failure(Reason::StrangePixels);
    const NewBitmap target = bitmapFor(width, height, CIFormat::RGBA16, CIColorSpace::SRGB, CIAlpha::Opaque, options);
    if (const int error = raw.copy_mem_image(target.pixels, int(target.bitmap.bytesPerRow()), 0))
        return failureOf(input, error);
    spreadRows(reinterpret_cast<std::uint16_t*>(target.pixels), width, height);
    return target.bitmap;
}

} // namespace

Result<PictureInfo> readRawInfo(const PictureInput& input)
{
    const auto raw = std::make_unique<LibRaw>();
    if (const int error = open(*raw, input))
        return failureOf(input, error);
    PictureInfo info;
    info.width = raw->imgdata.sizes.iwidth;
    info.height = raw->imgdata.sizes.iheight;
    if (swapsSides(*raw))
        std::swap(info.width, info.height);
    info.bitsPerComponent = 16;
    info.format = PictureFormat::CameraRaw;
    return info;
}

Result<CIBitmap> readRaw(const PictureInput& input, const ReadOptions& options)
{
    const auto raw = std::make_unique<LibRaw>();
    Watch watch{options, std::chrono::steady_clock::now() + options.timeLimit};
    raw->set_progress_handler(&Watch::isOver, &watch);
    if (const int error = open(*raw, input))
        return failureOf(input, error);
    const auto& sizes = raw->imgdata.sizes;
    const std::int64_t pixels = std::int64_t(sizes.raw_width) * sizes.raw_height;
    if (pixels > options.maxPixels)
        return input.failure(Reason::TooLarge);
    requireMemory(sizes.raw_width, sizes.raw_height, CIFormat::RGBA16, options);
    const int longerSide = std::max(sizes.iwidth, sizes.iheight);
    setDeveloping(*raw, options.maxSide > 0 && longerSide / 2 >= options.maxSide);
    int error = raw->unpack();
    if (!error)
        error = raw->dcraw_process();
    return error ? Result<CIBitmap>(failureOf(input, error, options)) : developed(*raw, input, options);
}

} // namespace imageio
