#include "platform/imageio/PictureSink.h"

#include "platform/foundation/PhysicalMemory.h"

#include <algorithm>
#include <cstring>
#include <limits>
#include <new>

namespace imageio {

namespace {

template <class T>
constexpr T kFull = std::numeric_limits<T>::max();
template <>
constexpr float kFull<float> = 1.0f;

/// Where the pixels of a stored picture go in the upright one: start + x * stepX + y * stepY bytes.
struct Placement {
    std::byte* start;
    std::ptrdiff_t stepX, stepY;
};

bool swapsSides(int orientation) { return orientation >= 5 && orientation <= 8; }

Placement placementFor(int orientation, const CIBitmap& bitmap, std::byte* first)
{
    const auto pixel = std::ptrdiff_t(bytesPerPixel(bitmap.format()));
    const auto line = std::ptrdiff_t(bitmap.bytesPerRow());
    std::byte* const topRight = first + pixel * (bitmap.width() - 1);
    std::byte* const bottomLeft = first + line * (bitmap.height() - 1);
    std::byte* const bottomRight = bottomLeft + pixel * (bitmap.width() - 1);
    switch (orientation) { // what the EXIF standard calls the visual top and left of row 0 and column 0
    case 2:
        return {topRight, -pixel, line};
    case 3:
        return {bottomRight, -pixel, -line};
    case 4:
        return {bottomLeft, pixel, -line};
    case 5:
        return {first, line, pixel};
    case 6:
        return {topRight, line, -pixel};
    case 7:
        return {bottomRight, -line, -pixel};
    case 8:
        return {bottomLeft, -line, pixel};
    default:
        return {first, pixel, line};
    }
}

/// Spreads `count` pixels of `bands` components to four, along any steps; answers the smallest alpha met.
template <class T>
T spread(const T* source, std::ptrdiff_t sourceStep, std::byte* target, std::ptrdiff_t targetStep, int count, int bands)
{
    const bool isGrey = bands <= 2;
    const bool hasAlpha = bands == 2 || bands == 4;
    const int green = isGrey ? 0 : 1, blue = isGrey ? 0 : 2, alpha = bands - 1;
    T smallest = kFull<T>;
    for (int i = 0; i < count; ++i, source += sourceStep, target += targetStep) {
        const T pixel[4] = {source[0], source[green], source[blue], hasAlpha ? source[alpha] : kFull<T>};
        smallest = pixel[3] < smallest ? pixel[3] : smallest;
        std::memcpy(target, pixel, sizeof pixel);
    }
    return smallest;
}

/// The common case, opaque and upright, in a form that the compiler turns into vector code.
template <class T>
void spreadOpaqueRow(const T* __restrict source, T* __restrict target, int count)
{
    for (int i = 0; i < count; ++i) {
        target[4 * i] = source[3 * i];
        target[4 * i + 1] = source[3 * i + 1];
        target[4 * i + 2] = source[3 * i + 2];
        target[4 * i + 3] = kFull<T>;
    }
}

class Sink {
public:
    Sink(VipsImage* image, CIColorSpace space, int orientation, CIAlpha alpha, const ReadOptions& options)
        : m_bands(vips_image_get_bands(image))
        , m_height(vips_image_get_height(image))
        , m_options(options)
        , m_deadline(std::chrono::steady_clock::now() + options.timeLimit)
    {
        const int width = vips_image_get_width(image), height = vips_image_get_height(image);
        const VipsBandFormat format = vips_image_get_format(image);
        m_format = format == VIPS_FORMAT_UCHAR ? CIFormat::RGBA8
            : format == VIPS_FORMAT_USHORT     ? CIFormat::RGBA16
                                               : CIFormat::RGBAf;
        const bool swaps = swapsSides(orientation);
        const CIColorSpace stored = m_format == CIFormat::RGBAf ? CIColorSpace::LinearSRGB : space;
        NewBitmap target = bitmapFor(swaps ? height : width, swaps ? width : height, m_format, stored, alpha, options);
        m_bitmap = std::move(target.bitmap);
        m_placement = placementFor(orientation, m_bitmap, target.pixels);
    }

    SinkResult pull(VipsImage* image)
    {
        const int status = vips_sink_disc(
            image,
            [](VipsRegion* region, VipsRect* area, void* self) {
                return static_cast<Sink*>(self)->take(region, *area);
            },
            this);
        if (status != 0)
            return {CIBitmap(), m_end == SinkEnd::Complete ? SinkEnd::Damaged : m_end};
        return done();
    }

    SinkResult pullPart(VipsImage* image)
    {
        constexpr int kRows = 8; // decoders keep about as many
        const std::unique_ptr<VipsRegion, ObjectUnref> region(vips_region_new(image));
        VipsRect rows{0, 0, vips_image_get_width(image), 0};
        for (; rows.top < m_height && m_end == SinkEnd::Complete; rows.top += rows.height) {
            rows.height = std::min(kRows, m_height - rows.top);
            if (vips_region_prepare(region.get(), &rows) != 0)
                break;
            take(region.get(), rows);
        }
        if (m_end != SinkEnd::Complete || rows.top == 0)
            return {CIBitmap(), m_end == SinkEnd::Complete ? SinkEnd::Damaged : m_end};
        m_isOpaque = m_isOpaque && rows.top >= m_height;
        return done();
    }

private:
    SinkResult done()
    {
        if (m_isOpaque)
            m_bitmap.setOpaque();
        return {std::move(m_bitmap), SinkEnd::Complete};
    }

    int take(VipsRegion* region, const VipsRect& area)
    {
        if (m_options.cancelled && m_options.cancelled->load(std::memory_order_relaxed))
            m_end = SinkEnd::Cancelled;
        else if (std::chrono::steady_clock::now() > m_deadline)
            m_end = SinkEnd::TimeOver;
        if (m_end != SinkEnd::Complete)
            return -1;
        switch (m_format) {
        case CIFormat::RGBA16:
            place<std::uint16_t>(region, area);
            break;
        case CIFormat::RGBAf:
            place<float>(region, area);
            break;
        default:
            place<std::uint8_t>(region, area);
        }
        if (m_options.progress)
            m_options.progress->store(float(area.top + area.height) / float(m_height), std::memory_order_relaxed);
        return 0;
    }

    template <class T>
    void place(VipsRegion* region, const VipsRect& area)
    {
        const auto source = [&](int x, int y) { return reinterpret_cast<const T*>(VIPS_REGION_ADDR(region, x, y)); };
        const auto target = [&](int x, int y) {
            return m_placement.start + x * m_placement.stepX + y * m_placement.stepY;
        };
        const auto pixel = std::ptrdiff_t(4 * sizeof(T));
        const auto line = std::ptrdiff_t(VIPS_REGION_LSKIP(region) / sizeof(T));
        T smallest = kFull<T>;
        if (m_placement.stepX == pixel && m_bands == 3)
            for (int y = area.top; y < area.top + area.height; ++y)
                spreadOpaqueRow(source(area.left, y), reinterpret_cast<T*>(target(area.left, y)), area.width);
        else if (m_placement.stepX == pixel || m_placement.stepX == -pixel)
            for (int y = area.top; y < area.top + area.height; ++y)
                smallest = std::min(smallest,
                    spread(
                        source(area.left, y), m_bands, target(area.left, y), m_placement.stepX, area.width, m_bands));
        else // columns become rows: walk along the columns, so that writes stay together
            for (int x = area.left; x < area.left + area.width; ++x)
                smallest = std::min(smallest,
                    spread(source(x, area.top), line, target(x, area.top), m_placement.stepY, area.height, m_bands));
        m_isOpaque = m_isOpaque && smallest >= kFull<T>;
    }

    int m_bands, m_height;
    const ReadOptions& m_options;
    std::chrono::steady_clock::time_point m_deadline;
    CIFormat m_format;
    CIBitmap m_bitmap;
    Placement m_placement;
    bool m_isOpaque = true;
    SinkEnd m_end = SinkEnd::Complete;
};

} // namespace

std::int64_t mostBytes(const ReadOptions& options)
{
    constexpr std::int64_t kShareOfMemory = 2; // filters and the history need some, too
    return options.maxBytes > 0 ? options.maxBytes : physicalMemory() / kShareOfMemory;
}

void requireMemory(int width, int height, CIFormat format, const ReadOptions& options)
{
    if (std::int64_t(width) * height > mostBytes(options) / std::int64_t(bytesPerPixel(format)))
        throw std::bad_alloc();
}

NewBitmap bitmapFor(
    int width, int height, CIFormat format, CIColorSpace space, CIAlpha alpha, const ReadOptions& options)
{
    requireMemory(width, height, format, options);
    const std::size_t rowBytes = std::size_t(width) * bytesPerPixel(format);
    if (options.memory) {
        const std::shared_ptr<std::byte> memory = options.memory(rowBytes * std::size_t(height));
        return {CIBitmap(memory.get(), width, height, rowBytes, format, alpha, space, memory), memory.get()};
    }
    NewBitmap made{CIBitmap(width, height, format, alpha, space), nullptr};
    made.pixels = made.bitmap.mutableRow(0);
    return made;
}

SinkResult pullIntoBitmap(
    VipsImage* image, CIColorSpace space, int orientation, CIAlpha alpha, const ReadOptions& options, bool acceptsPart)
{
    Sink sink(image, space, orientation, alpha, options);
    return acceptsPart ? sink.pullPart(image) : sink.pull(image);
}

} // namespace imageio
