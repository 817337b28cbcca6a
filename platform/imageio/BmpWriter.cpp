#include "platform/imageio/BmpWriter.h"

#include "platform/imageio/ByteOrder.h"

#include <cmath>

namespace imageio {

namespace {

constexpr std::uint32_t kFileHeader = 14, kPlainHeader = 40, kFifthHeader = 124; // bytes
constexpr std::uint32_t kBitFields = 3;
constexpr std::uint32_t kSrgb = 0x73524742; // "sRGB", as a number
constexpr std::uint32_t kImagesIntent = 4;
constexpr std::uint64_t kMostBytes = 0x7fffffff; // many readers count in signed numbers

struct Shape {
    int width, height;
    bool hasAlpha;
    std::uint32_t rowBytes() const
    {
        return hasAlpha ? 4u * std::uint32_t(width) : (3u * std::uint32_t(width) + 3) & ~3u;
    }
    std::uint64_t pixelBytes() const { return std::uint64_t(rowBytes()) * std::uint64_t(height); }
    std::uint32_t headerBytes() const { return kFileHeader + (hasAlpha ? kFifthHeader : kPlainHeader); }
};

ByteSink header(const Shape& shape, double dotsPerInch)
{
    const auto perMeter = std::uint32_t(std::lround(dotsPerInch / 0.0254));
    ByteSink bytes;
    bytes.text("BM");
    bytes.little32(std::uint32_t(shape.headerBytes() + shape.pixelBytes()));
    bytes.little32(0);
    bytes.little32(shape.headerBytes());
    bytes.little32(shape.headerBytes() - kFileHeader);
    bytes.little32(std::uint32_t(shape.width));
    bytes.little32(std::uint32_t(shape.height)); // positive: the lowest row comes first
    bytes.little16(1);
    bytes.little16(shape.hasAlpha ? 32 : 24);
    bytes.little32(shape.hasAlpha ? kBitFields : 0);
    bytes.little32(std::uint32_t(shape.pixelBytes()));
    bytes.little32(perMeter);
    bytes.little32(perMeter);
    bytes.zeros(8); // no palette
    if (shape.hasAlpha) {
        for (const std::uint32_t mask : {0x00ff0000u, 0x0000ff00u, 0x000000ffu, 0xff000000u})
            bytes.little32(mask);
        bytes.little32(kSrgb);
        bytes.zeros(48); // end points and gamma, which sRGB implies
        bytes.little32(kImagesIntent);
        bytes.zeros(12);
    }
    return bytes;
}

void packRow(const VipsPel* source, const Shape& shape, std::uint8_t* target)
{
    const int bands = shape.hasAlpha ? 4 : 3;
    for (int x = 0; x < shape.width; ++x, source += bands, target += bands) {
        target[0] = source[2];
        target[1] = source[1];
        target[2] = source[0];
        if (shape.hasAlpha)
            target[3] = source[3];
    }
}

struct Output {
    Shape shape;
    VipsTarget* target;
    std::vector<std::uint8_t> row;
};

int writeRows(VipsRegion* region, VipsRect* area, void* data)
{
    auto& output = *static_cast<Output*>(data);
    for (int y = area->top; y < area->top + area->height; ++y) {
        packRow(VIPS_REGION_ADDR(region, 0, y), output.shape, output.row.data());
        if (vips_target_write(output.target, output.row.data(), output.row.size()) != 0)
            return -1;
    }
    return 0;
}

} // namespace

int writeBmp(VipsImage* image, VipsTarget* target, double dotsPerInch)
{
    const Shape shape{image->Xsize, image->Ysize, image->Bands == 4};
    if (shape.pixelBytes() > kMostBytes) {
        vips_error("bmp", "the picture is too large for this format");
        return -1;
    }
    const ByteSink start = header(shape, dotsPerInch);
    const VipsImagePtr upsideDown =
        derive([&](VipsImage** out) { return vips_flip(image, out, VIPS_DIRECTION_VERTICAL, nullptr); });
    Output output{shape, target, std::vector<std::uint8_t>(shape.rowBytes())};
    if (!upsideDown || vips_target_write(target, start.data(), start.size()) != 0
        || vips_sink_disc(upsideDown.get(), writeRows, &output) != 0)
        return -1;
    return vips_target_end(target);
}

} // namespace imageio
