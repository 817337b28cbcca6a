#include "platform/foundation/PackedBitmap.h"

#include "platform/coreimage/CIColorProfile.h"

#include <algorithm>
#include <array>
#include <memory>
#include <optional>
#include <stdexcept>
#include <vector>

#include <zstd.h>

namespace {

constexpr int kRowsAtOnce = 64;
constexpr int kLevel = 1; // nearly as fast as the disk
constexpr int kProfiled = int(CIColorSpace::LinearSRGB) + 1; // described after the header
constexpr quint32 kMagic = 0x4c565831; // "LVX1"

struct FreeCompressor {
    void operator()(ZSTD_CCtx* compressor) const { ZSTD_freeCCtx(compressor); }
};

/// All that has to be known about the rows. Read by the same kind of machine only.
struct Header {
    quint32 magic = kMagic;
    qint32 width = 0, height = 0, format = 0, alpha = 0, space = 0;

    bool isSane(std::int64_t maxPixels) const
    {
        return magic == kMagic && width > 0 && height > 0 && std::int64_t(width) * height <= maxPixels && format >= 0
            && format <= int(CIFormat::RGBAf) && alpha >= 0 && alpha <= int(CIAlpha::Premultiplied) && space >= 0
            && space <= kProfiled;
    }
};

template <class T>
bool put(QIODevice& device, const T* data, std::size_t bytes)
{
    return device.write(reinterpret_cast<const char*>(data), qint64(bytes)) == qint64(bytes);
}

template <class T>
bool get(QIODevice& device, T* data, std::size_t bytes)
{
    return device.read(reinterpret_cast<char*>(data), qint64(bytes)) == qint64(bytes);
}

bool putSpace(QIODevice& device, CIColorSpace space)
{
    const std::string bytes = packedSpace(space);
    const auto size = quint32(bytes.size());
    return put(device, &size, sizeof size) && put(device, bytes.data(), bytes.size());
}

/// Follows the header when that doesn't say it all.
std::optional<CIColorSpace> spaceOf(const Header& header, QIODevice& device)
{
    if (header.space != kProfiled)
        return CIColorSpace(header.space);
    quint32 size = 0;
    if (!get(device, &size, sizeof size) || qint64(size) > device.bytesAvailable())
        return {};
    std::string bytes(size, '\0');
    try {
        return get(device, bytes.data(), size) ? std::optional(unpackedSpace(bytes)) : std::nullopt;
    } catch (const std::invalid_argument&) {
        return {};
    }
}

} // namespace

bool packBitmap(const CIBitmap& bitmap, QIODevice& device, const std::atomic<bool>* stop)
{
    if (bitmap.isNull())
        return false;
    const bool isProfiled = profiledSpace(bitmap.colorSpace());
    const Header header{kMagic, bitmap.width(), bitmap.height(), int(bitmap.format()), int(bitmap.alpha()),
        isProfiled ? kProfiled : int(bitmap.colorSpace())};
    if (!put(device, &header, sizeof header) || (isProfiled && !putSpace(device, bitmap.colorSpace())))
        return false;
    const std::unique_ptr<ZSTD_CCtx, FreeCompressor> compressor(ZSTD_createCCtx());
    ZSTD_CCtx_setParameter(compressor.get(), ZSTD_c_compressionLevel, kLevel);
    ZSTD_CCtx_setParameter(compressor.get(), ZSTD_c_checksumFlag, 1);
    const std::size_t rowBytes = std::size_t(bitmap.width()) * bytesPerPixel(bitmap.format());
    std::vector<std::byte> rows(rowBytes * kRowsAtOnce), packed(ZSTD_compressBound(rows.size()));
    for (int top = 0; top < bitmap.height(); top += kRowsAtOnce) {
        if (stop && stop->load(std::memory_order_relaxed))
            return false;
        const int count = std::min(kRowsAtOnce, bitmap.height() - top);
        for (int y = 0; y < count; ++y)
            std::copy_n(bitmap.row(top + y), rowBytes, rows.data() + std::size_t(y) * rowBytes);
        const std::size_t size =
            ZSTD_compress2(compressor.get(), packed.data(), packed.size(), rows.data(), rowBytes * std::size_t(count));
        const auto length = quint64(size);
        if (ZSTD_isError(size) || !put(device, &length, sizeof length) || !put(device, packed.data(), size))
            return false;
    }
    return true;
}

CIBitmap unpackBitmap(QIODevice& device, std::int64_t maxPixels)
{
    Header header;
    if (!get(device, &header, sizeof header) || !header.isSane(maxPixels))
        return {};
    const std::size_t rowBytes = std::size_t(header.width) * bytesPerPixel(CIFormat(header.format));
    // Even a single color takes three bytes for each 128 KB.
    constexpr std::int64_t kMostBytesPerByte = 128 * 1024 / 3;
    if (std::int64_t(rowBytes) > device.bytesAvailable() * kMostBytesPerByte / header.height)
        return {};
    const std::optional<CIColorSpace> space = spaceOf(header, device);
    if (!space)
        return {};
    CIBitmap bitmap(header.width, header.height, CIFormat(header.format), CIAlpha(header.alpha), *space);
    std::vector<std::byte> rows(rowBytes * std::size_t(std::min(kRowsAtOnce, header.height)));
    std::vector<std::byte> packed(ZSTD_compressBound(rows.size()));
    for (int top = 0; top < header.height; top += kRowsAtOnce) {
        const auto count = std::size_t(std::min(kRowsAtOnce, header.height - top));
        quint64 size = 0;
        if (!get(device, &size, sizeof size) || size > packed.size() || !get(device, packed.data(), size)
            || ZSTD_decompress(rows.data(), rows.size(), packed.data(), size) != rowBytes * count)
            return {};
        for (std::size_t y = 0; y < count; ++y)
            std::copy_n(rows.data() + y * rowBytes, rowBytes, bitmap.mutableRow(top + int(y)));
    }
    return bitmap;
}
