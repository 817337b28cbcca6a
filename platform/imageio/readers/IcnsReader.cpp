// Icon files: the largest of the pictures, which are files of their own or packed planes.
#include "platform/imageio/readers/DeferredImage.h"
#include "platform/imageio/readers/Readers.h"

#include <algorithm>
#include <array>
#include <optional>
#include <vector>

namespace imageio {

namespace {

using Bytes = std::span<const std::byte>;

constexpr std::size_t kEntryHeader = 8;

struct Kind {
    std::string_view name, mask; // without a mask it is a file, or planes that begin with alpha
    int side; // px
};
/// The largest first, of the same size the richest.
constexpr Kind kKinds[] = {
    {"ic10", "", 1024},
    {"ic09", "", 512},
    {"ic14", "", 512},
    {"ic08", "", 256},
    {"ic13", "", 256},
    {"ic07", "", 128},
    {"it32", "t8mk", 128},
    {"ic12", "", 64},
    {"icp6", "", 64},
    {"ih32", "h8mk", 48},
    {"ic05", "", 32},
    {"ic11", "", 32},
    {"icp5", "", 32},
    {"il32", "l8mk", 32},
    {"ic04", "", 16},
    {"icp4", "", 16},
    {"is32", "s8mk", 16},
};

std::size_t bigEndian(Bytes bytes)
{
    std::size_t value = 0;
    for (const std::byte byte : bytes.first(4))
        value = value << 8 | std::to_integer<std::size_t>(byte);
    return value;
}

/// Empty when there is no such entry.
Bytes entryNamed(Bytes file, std::string_view name)
{
    Bytes rest = file.subspan(std::min(kEntryHeader, file.size()));
    while (rest.size() > kEntryHeader) {
        const std::size_t size = bigEndian(rest.subspan(4));
        if (size < kEntryHeader || size > rest.size())
            break;
        if (std::string_view(reinterpret_cast<const char*>(rest.data()), 4) == name)
            return rest.subspan(kEntryHeader, size - kEntryHeader);
        rest = rest.subspan(size);
    }
    return {};
}

/// Bytes as they are after a number below 128, else one byte again and again.
std::optional<std::vector<std::byte>> unpacked(Bytes packed, std::size_t wanted)
{
    std::vector<std::byte> bytes;
    while (bytes.size() < wanted) {
        if (packed.size() < 2)
            return std::nullopt;
        const auto head = std::to_integer<std::size_t>(packed[0]);
        if (head < 128) {
            const std::size_t count = head + 1;
            if (packed.size() < 1 + count)
                return std::nullopt;
            bytes.insert(bytes.end(), packed.begin() + 1, packed.begin() + 1 + std::ptrdiff_t(count));
            packed = packed.subspan(1 + count);
        } else {
            bytes.insert(bytes.end(), head - 125, packed[1]);
            packed = packed.subspan(2);
        }
    }
    return bytes;
}

/// `order` says which band each plane is.
void interleave(Bytes planes, std::size_t pixels, std::initializer_list<std::size_t> order, std::span<std::byte> target)
{
    std::size_t plane = 0;
    for (const std::size_t band : order) {
        for (std::size_t i = 0; i < pixels; ++i)
            target[4 * i + band] = planes[plane * pixels + i];
        ++plane;
    }
}

bool fillPlanes(Bytes entry, Bytes mask, std::size_t pixels, std::span<std::byte> target)
{
    constexpr std::string_view kAlphaFirst = "ARGB";
    if (std::string_view(reinterpret_cast<const char*>(entry.data()), std::min<std::size_t>(4, entry.size()))
        == kAlphaFirst) {
        const auto planes = unpacked(entry.subspan(4), 4 * pixels);
        if (planes)
            interleave(*planes, pixels, {3, 0, 1, 2}, target);
        return planes.has_value();
    }
    if (entry.size() > 4 && bigEndian(entry) == 0) // only in the largest ones
        entry = entry.subspan(4);
    const auto planes = unpacked(entry, 3 * pixels);
    if (!planes || mask.size() < pixels)
        return false;
    interleave(*planes, pixels, {0, 1, 2}, target);
    interleave(mask, pixels, {3}, target);
    return true;
}

} // namespace

void openIcns(OpenPicture& picture, const PictureInput&, int maxSide)
{
    const Bytes file = PictureInput::wholeContent(picture.source.get());
    for (const Kind& kind : kKinds) {
        const Bytes entry = entryNamed(file, kind.name);
        if (entry.empty())
            continue;
        const Result<PictureInput> inner = PictureInput::fromMemory(entry);
        if (inner && (inner->isOf(PictureFormat::Png) || inner->isOf(PictureFormat::Jpeg2000))) {
            openInner(picture, *inner, maxSide);
            return;
        }
        const Bytes mask = entryNamed(file, kind.mask);
        const auto pixels = std::size_t(kind.side) * std::size_t(kind.side);
        picture.image = deferredImage({kind.side, kind.side, 4, VIPS_FORMAT_UCHAR, VIPS_INTERPRETATION_sRGB},
            [=, source = held(picture.source)](
                std::span<std::byte> target) { return fillPlanes(entry, mask, pixels, target); });
        return;
    }
}

} // namespace imageio
