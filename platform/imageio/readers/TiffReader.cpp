// TIFF files: what libvips misreads goes through libtiff.
#include "platform/imageio/readers/DeferredImage.h"
#include "platform/imageio/readers/FileBytes.h"
#include "platform/imageio/readers/Readers.h"

#include <cmath>
#include <cstring>
#include <vector>

#include <tiffio.h>

namespace imageio {

namespace {

struct CloseTiff {
    void operator()(TIFF* file) const { TIFFClose(file); }
};
using TiffPtr = std::unique_ptr<TIFF, CloseTiff>;

/// A file in memory, as libtiff wants it.
struct Memory {
    Bytes bytes;
    std::size_t place = 0;

    static tmsize_t read(thandle_t self, void* target, tmsize_t size)
    {
        auto& memory = *static_cast<Memory*>(self);
        const Bytes rest = memory.bytes.subspan(std::min(memory.place, memory.bytes.size()));
        const std::size_t count = std::min(rest.size(), std::size_t(std::max<tmsize_t>(size, 0)));
        std::memcpy(target, rest.data(), count);
        memory.place += count;
        return tmsize_t(count);
    }
    static tmsize_t write(thandle_t, void*, tmsize_t) { return 0; }
    static toff_t seek(thandle_t self, toff_t offset, int from)
    {
        auto& memory = *static_cast<Memory*>(self);
        memory.place = offset + (from == SEEK_CUR ? memory.place : from == SEEK_END ? memory.bytes.size() : 0);
        return memory.place;
    }
    static int close(thandle_t) { return 0; }
    static toff_t size(thandle_t self) { return static_cast<Memory*>(self)->bytes.size(); }
};

TiffPtr openedTiff(Memory& memory)
{
    return TiffPtr(TIFFClientOpen("picture.tif", "rm", &memory, Memory::read, Memory::write, Memory::seek,
        Memory::close, Memory::size, nullptr, nullptr));
}

struct Kind {
    std::uint32_t width = 0, height = 0;
    std::uint16_t bits = 1, samples = 1, format = SAMPLEFORMAT_UINT, photometric = 0, compression = 0, planes = 0;
    std::uint16_t orientation = ORIENTATION_TOPLEFT;

    explicit Kind(TIFF* file)
    {
        TIFFGetField(file, TIFFTAG_IMAGEWIDTH, &width);
        TIFFGetField(file, TIFFTAG_IMAGELENGTH, &height);
        TIFFGetField(file, TIFFTAG_PHOTOMETRIC, &photometric);
        for (const auto& [tag, field] : {std::pair(TIFFTAG_BITSPERSAMPLE, &bits), {TIFFTAG_SAMPLESPERPIXEL, &samples},
                 {TIFFTAG_SAMPLEFORMAT, &format}, {TIFFTAG_COMPRESSION, &compression}, {TIFFTAG_PLANARCONFIG, &planes},
                 {TIFFTAG_ORIENTATION, &orientation}})
            TIFFGetFieldDefaulted(file, tag, field);
    }
    bool isFloat() const { return format == SAMPLEFORMAT_IEEEFP; }
    bool arePlanes() const { return planes == PLANARCONFIG_SEPARATE; }
    int colors() const { return photometric == PHOTOMETRIC_RGB ? 3 : photometric == PHOTOMETRIC_SEPARATED ? 4 : 1; }
    int bands() const { return std::min<int>(samples, colors() + 1); }
    /// Of a depth that libvips lacks.
    bool hasOddSamples() const
    {
        const bool isGrey = photometric == PHOTOMETRIC_MINISWHITE || photometric == PHOTOMETRIC_MINISBLACK;
        if ((!isGrey && photometric != PHOTOMETRIC_RGB && photometric != PHOTOMETRIC_SEPARATED) || samples < colors()
            || format == SAMPLEFORMAT_INT)
            return false;
        if (isFloat())
            return bits == 16 || bits == 24;
        const bool isSmall = (bits == 1 || bits == 2 || bits == 4) && isGrey && samples == 1;
        return !isSmall && bits != 8 && bits != 16 && bits < 32;
    }
    /// Of a kind that libtiff turns into colors better than libvips does.
    bool needsConversion() const
    {
        return compression == COMPRESSION_OJPEG
            || (photometric == PHOTOMETRIC_YCBCR && compression != COMPRESSION_JPEG);
    }
    PixelLayout layout() const
    {
        const VipsBandFormat band = isFloat() ? VIPS_FORMAT_FLOAT : bits <= 8 ? VIPS_FORMAT_UCHAR : VIPS_FORMAT_USHORT;
        const VipsInterpretation interpretation = colors() == 4 ? VIPS_INTERPRETATION_CMYK
            : isFloat()                                         ? VIPS_INTERPRETATION_scRGB
            : colors() == 1 ? (bits <= 8 ? VIPS_INTERPRETATION_B_W : VIPS_INTERPRETATION_GREY16)
                            : (bits <= 8 ? VIPS_INTERPRETATION_sRGB : VIPS_INTERPRETATION_RGB16);
        return {int(width), int(height), bands(), band, interpretation};
    }
};

/// Whole numbers of any width, the highest bit first, save those that libtiff has brought into our order.
std::uint32_t sampleAt(Bytes row, std::size_t index, std::size_t bits)
{
    const std::size_t first = index * bits;
    if (bits == 16)
        return LittleEndian(row).u16(first / 8);
    if (bits == 24)
        return LittleEndian(row).u16(first / 8) | LittleEndian(row).u8(first / 8 + 2) << 16;
    std::uint64_t window = 0;
    for (std::size_t i = 0; i < 5; ++i)
        window = window << 8 | BigEndian(row).u8(first / 8 + i);
    return std::uint32_t(window >> (40 - first % 8 - bits) & ((std::uint64_t(1) << bits) - 1));
}

/// A floating-point number of 16 or 24 bits.
float shortFloat(std::uint32_t number, int bits)
{
    const int exponentBits = bits == 16 ? 5 : 7, mantissaBits = bits - 1 - exponentBits;
    const int exponent = int(number >> mantissaBits) & ((1 << exponentBits) - 1), bias = (1 << (exponentBits - 1)) - 1;
    const double mantissa = double(number & ((1u << mantissaBits) - 1)) / double(1u << mantissaBits);
    const double size = exponent == 0 ? std::ldexp(mantissa, 1 - bias) : std::ldexp(1 + mantissa, exponent - bias);
    return float(number >> (bits - 1) & 1 ? -size : size);
}

class OddSamples {
public:
    OddSamples(const Kind& kind, std::span<std::byte> pixels)
        : m_kind(kind)
        , m_layout(kind.layout())
        , m_pixels(pixels)
    {
    }

    bool fill(TIFF* file) const
    {
        const bool isTiled = TIFFIsTiled(file);
        std::uint32_t width = m_kind.width, height = m_kind.height;
        TIFFGetFieldDefaulted(file, isTiled ? TIFFTAG_TILELENGTH : TIFFTAG_ROWSPERSTRIP, &height);
        if (isTiled)
            TIFFGetField(file, TIFFTAG_TILEWIDTH, &width);
        if (width == 0 || height == 0)
            return false;
        const tmsize_t rowBytes = isTiled ? TIFFTileRowSize(file) : TIFFScanlineSize(file);
        std::vector<std::byte> block(std::size_t(isTiled ? TIFFTileSize(file) : TIFFStripSize(file)));
        const std::uint32_t count = isTiled ? TIFFNumberOfTiles(file) : TIFFNumberOfStrips(file);
        const std::uint32_t perPlane = m_kind.arePlanes() ? count / m_kind.samples : count;
        const std::uint32_t across = (m_kind.width - 1) / width + 1;
        for (std::uint32_t i = 0; i < count && perPlane > 0; ++i) {
            const std::uint32_t plane = i / perPlane, place = i % perPlane;
            if (plane >= std::uint32_t(m_layout.bands))
                break;
            const tmsize_t read = isTiled ? TIFFReadEncodedTile(file, i, block.data(), tmsize_t(block.size()))
                                          : TIFFReadEncodedStrip(file, i, block.data(), tmsize_t(block.size()));
            if (read < 0 || rowBytes <= 0)
                return false;
            const Bytes rows = Bytes(block).first(std::size_t(read));
            put(rows, std::size_t(rowBytes),
                {int(place % across * width), int(place / across * height), int(width),
                    int(std::min(height, m_kind.height))},
                plane);
        }
        return true;
    }

private:
    void put(Bytes rows, std::size_t rowBytes, const VipsRect& block, std::uint32_t plane) const
    {
        const int right = std::min(block.left + block.width, m_layout.width);
        const int bottom = std::min(block.top + block.height, m_layout.height);
        const std::size_t step = m_kind.arePlanes() ? 1 : m_kind.samples, bands = std::size_t(m_layout.bands);
        for (int y = block.top; y < bottom; ++y) {
            const std::size_t at = std::size_t(y - block.top) * rowBytes;
            if (at + rowBytes > rows.size())
                return;
            const Bytes row = rows.subspan(at, rowBytes);
            std::size_t target = (std::size_t(y) * std::size_t(m_layout.width) + std::size_t(block.left)) * bands;
            for (std::size_t i = 0; i < std::size_t(right - block.left); ++i, target += bands)
                if (m_kind.arePlanes())
                    putSample(sampleAt(row, i, m_kind.bits), target + plane);
                else
                    for (std::size_t band = 0; band < bands; ++band)
                        putSample(sampleAt(row, i * step + band, m_kind.bits), target + band);
        }
    }

    void putSample(std::uint32_t sample, std::size_t index) const
    {
        if (m_kind.isFloat()) {
            reinterpret_cast<float*>(m_pixels.data())[index] = shortFloat(sample, m_kind.bits);
            return;
        }
        const std::uint64_t most = (std::uint64_t(1) << m_kind.bits) - 1;
        if (m_kind.photometric == PHOTOMETRIC_MINISWHITE && index % std::size_t(m_layout.bands) == 0)
            sample = std::uint32_t(most) - sample;
        if (m_kind.bits <= 8)
            m_pixels[index] = std::byte((sample * 255 + most / 2) / most);
        else
            reinterpret_cast<std::uint16_t*>(m_pixels.data())[index] =
                std::uint16_t((std::uint64_t(sample) * 65535 + most / 2) / most);
    }

    Kind m_kind;
    PixelLayout m_layout;
    std::span<std::byte> m_pixels;
};

bool fillConverted(TIFF* file, const Kind& kind, std::span<std::byte> pixels)
{
    std::vector<std::uint32_t> words(std::size_t(kind.width) * kind.height);
    char message[1024] = {};
    TIFFRGBAImage image;
    if (!TIFFRGBAImageBegin(&image, file, 1, message)) {
        vips_error("libtiff", "%s", message);
        return false;
    }
    image.req_orientation = image.orientation; // turned later, as all pictures are
    const bool isDone = TIFFRGBAImageGet(&image, words.data(), kind.width, kind.height);
    TIFFRGBAImageEnd(&image);
    for (std::size_t i = 0; i < words.size(); ++i) {
        pixels[3 * i] = std::byte(TIFFGetR(words[i]));
        pixels[3 * i + 1] = std::byte(TIFFGetG(words[i]));
        pixels[3 * i + 2] = std::byte(TIFFGetB(words[i]));
    }
    return isDone;
}

VipsImagePtr imageOf(TIFF* file, const Kind& kind, bool isConverted, const VipsSourcePtr& source)
{
    const Bytes content = PictureInput::wholeContent(source.get());
    constexpr int kMostPerByte = 10000; // of what packs best
    if (!fitsInto(content.size(), kind.width, kind.height, kMostPerByte))
        return nullptr;
    const PixelLayout converted{int(kind.width), int(kind.height), 3, VIPS_FORMAT_UCHAR, VIPS_INTERPRETATION_sRGB};
    VipsImagePtr image = deferredImage(isConverted ? converted : kind.layout(),
        [content, kind, isConverted, source = held(source)](std::span<std::byte> pixels) {
            Memory memory{content};
            const TiffPtr tiff = openedTiff(memory);
            return tiff
                && (isConverted ? fillConverted(tiff.get(), kind, pixels) : OddSamples(kind, pixels).fill(tiff.get()));
        });
    std::uint32_t size = 0;
    void* profile = nullptr;
    if (image && TIFFGetField(file, TIFFTAG_ICCPROFILE, &size, &profile))
        vips_image_set_blob_copy(image.get(), VIPS_META_ICC_NAME, profile, size);
    if (image)
        vips_image_set_int(image.get(), VIPS_META_ORIENTATION, kind.orientation);
    return image;
}

} // namespace

void openTiff(OpenPicture& picture, const PictureInput&, int)
{
    Memory memory{PictureInput::wholeContent(picture.source.get())};
    const TiffPtr tiff = openedTiff(memory);
    if (!tiff)
        return;
    const Kind kind(tiff.get());
    if (kind.hasOddSamples() || kind.needsConversion())
        picture.image = imageOf(tiff.get(), kind, kind.needsConversion(), picture.source);
    else
        picture.image = load("tiffload_source", picture.source.get());
    char message[1024] = {};
    if (!picture.image && !kind.needsConversion() && TIFFRGBAImageOK(tiff.get(), message))
        picture.image = imageOf(tiff.get(), kind, true, picture.source);
}

} // namespace imageio
