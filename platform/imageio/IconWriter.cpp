#include "platform/imageio/IconWriter.h"

#include "platform/imageio/ByteOrder.h"

#include <algorithm>
#include <array>

namespace imageio {

namespace {

constexpr std::array kIcnsSides{16, 48, 128, 256, 512, 1024};
constexpr std::array kIcoSides{16, 48, 128, 256};

struct FreeBytes {
    void operator()(void* bytes) const { g_free(bytes); }
};
struct Bytes {
    std::unique_ptr<void, FreeBytes> data;
    std::size_t size = 0;
};

Bytes pngOf(VipsImage* image)
{
    void* data = nullptr;
    Bytes bytes;
    if (vips_pngsave_buffer(image, &data, &bytes.size, nullptr) == 0)
        bytes.data.reset(data);
    return bytes;
}

bool isSquareOf(VipsImage* image, std::span<const int> sides)
{
    if (image->Xsize == image->Ysize && std::ranges::find(sides, image->Xsize) != sides.end())
        return true;
    vips_error("icon", "there are no icons of %d x %d pixels", image->Xsize, image->Ysize);
    return false;
}

/// The name of the entry that holds a PNG of that side; empty where only the old entries exist.
std::string_view icnsType(int side)
{
    switch (side) {
    case 16:
        return "icp4";
    case 128:
        return "ic07";
    case 256:
        return "ic08";
    case 512:
        return "ic09";
    case 1024:
        return "ic10";
    default:
        return {};
    }
}

/// Runs of single bytes only: valid, if not short.
void packPlane(ByteSink& sink, const VipsPel* plane, std::size_t count, std::size_t step)
{
    constexpr std::size_t longestRun = 128;
    for (std::size_t i = 0; i < count;) {
        const std::size_t run = std::min(longestRun, count - i);
        sink.byte(std::uint8_t(run - 1));
        for (const std::size_t end = i + run; i < end; ++i)
            sink.byte(plane[i * step]);
    }
}

void entry(ByteSink& sink, std::string_view type, const void* data, std::size_t size)
{
    sink.text(type);
    sink.big32(std::uint32_t(8 + size));
    sink.text({static_cast<const char*>(data), size});
}

/// 48 pixels are older than PNG in these files: three packed planes, and the mask apart.
int appendOldIcon(ByteSink& sink, VipsImage* image)
{
    std::size_t size = 0;
    const std::unique_ptr<void, FreeBytes> memory(vips_image_write_to_memory(image, &size));
    if (!memory)
        return -1;
    const auto* pixels = static_cast<const VipsPel*>(memory.get());
    const std::size_t bands = std::size_t(image->Bands), count = size / bands;
    ByteSink planes, mask;
    for (std::size_t band = 0; band < 3; ++band)
        packPlane(planes, pixels + band, count, bands);
    for (std::size_t i = 0; i < count; ++i)
        mask.byte(bands == 4 ? pixels[i * bands + 3] : 255);
    entry(sink, "ih32", planes.data(), planes.size());
    entry(sink, "h8mk", mask.data(), mask.size());
    return 0;
}

int writeAll(VipsTarget* target, const ByteSink& bytes)
{
    return vips_target_write(target, bytes.data(), bytes.size()) == 0 ? vips_target_end(target) : -1;
}

} // namespace

std::span<const int> icnsSides() { return kIcnsSides; }
std::span<const int> icoSides() { return kIcoSides; }

int writeIcns(VipsImage* image, VipsTarget* target)
{
    if (!isSquareOf(image, kIcnsSides))
        return -1;
    ByteSink entries;
    const std::string_view type = icnsType(image->Xsize);
    if (type.empty()) {
        if (appendOldIcon(entries, image) != 0)
            return -1;
    } else {
        const Bytes png = pngOf(image);
        if (!png.data)
            return -1;
        entry(entries, type, png.data.get(), png.size);
    }
    ByteSink file;
    entry(file, "icns", entries.data(), entries.size());
    return writeAll(target, file);
}

int writeIco(VipsImage* image, VipsTarget* target)
{
    if (!isSquareOf(image, kIcoSides))
        return -1;
    const Bytes png = pngOf(image);
    if (!png.data)
        return -1;
    ByteSink file;
    file.little16(0);
    file.little16(1); // an icon
    file.little16(1); // of one picture
    for (int i = 0; i < 2; ++i)
        file.byte(std::uint8_t(image->Xsize)); // 256 is written as 0
    file.little16(0); // no palette
    file.little16(1); // planes
    file.little16(32);
    file.little32(std::uint32_t(png.size));
    file.little32(22); // where the picture starts
    file.text({static_cast<const char*>(png.data.get()), png.size});
    return writeAll(target, file);
}

} // namespace imageio
