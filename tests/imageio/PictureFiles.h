// Small picture files, put together byte by byte so that their truth is plain.
#pragma once

#include "platform/coreimage/CIBitmap.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

using Bytes = std::vector<std::byte>;

Bytes bytesOf(std::string_view text);
Bytes bytesOf(std::initializer_list<int> values);
/// 16-bit numbers in little-endian order.
Bytes wordsOf(std::initializer_list<int> values);
Bytes floatsOf(std::initializer_list<float> values);
void append(Bytes& target, const Bytes& more);
/// The lowest `size` bytes of the value, lowest first unless asked otherwise.
void put(Bytes& target, std::uint32_t value, int size, bool isBigEndian = false);

/// `rows` holds the packed rows without filter bytes; further chunks go before the pixels.
Bytes pngFile(int width, int height, int bits, int colorType, const Bytes& rows,
    const std::vector<std::pair<std::string, Bytes>>& chunks = {});
/// The iCCP chunk for a profile.
std::pair<std::string, Bytes> profileChunk(const Bytes& profile);

struct TiffEntry {
    int tag;
    int type; // 1 byte, 2 text, 3 short, 4 long, 5 rational (two numbers each), 10 signed rational
    std::vector<std::int64_t> values;
};
/// One strip, uncompressed, little-endian. Entries given replace the usual ones of the same tag.
Bytes tiffFile(int width, int height, int samples, int bits, int photometric, const Bytes& pixels,
    const std::vector<TiffEntry>& entries = {});

Bytes gifFile(); // two frames of one pixel: red, then blue
Bytes bmpFile(); // 2 x 2: red, green above blue, white
Bytes iconFile(); // 1 x 1 green, and 2 x 2 as in bmpFile
Bytes sgiFile(); // 2 x 1: red, blue
Bytes psdFile(); // 2 x 1: red, blue
Bytes inksFile(); // a PSD of 3 x 1 in CMYK: paper, black, cyan
Bytes runsFile(); // a BMP of 6 x 2 with a palette of two, in runs; its pixel (2, 1) is in none
Bytes exrFile(); // 2 x 1 RGBA half floats: (2, 0.5, 0.25, 1), (0.25, 0.25, 0.25, 0.5)
Bytes rawFile(); // a DNG of 64 x 48 px, grey, light in its left half
Bytes pdfFile(); // 72 x 36 points, the left half red

/// Formats that the program only reads, made by their own libraries.
Bytes avifFile(const CIBitmap&);
Bytes jpegXlFile(const CIBitmap&);

/// A JPEG file as EXIF wants it turned.
Bytes withExifOrientation(const Bytes& jpeg, int orientation);

/// Deterministic noise.
CIBitmap noiseBitmap(int width, int height, CIFormat = CIFormat::RGBA8, CIAlpha = CIAlpha::Straight);

/// As screens show it, of 8 bits.
CIBitmap inSrgb(const CIBitmap&);

/// The four components of one pixel, 0 to 255 or 0 to 65535 or float.
std::array<double, 4> pixelAt(const CIBitmap&, int x, int y);

/// A folder that goes away with everything in it.
class TemporaryFolder {
public:
    TemporaryFolder();
    ~TemporaryFolder();
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;
    const std::filesystem::path& path() const { return m_path; }
    std::filesystem::path write(const std::string& name, const Bytes&) const;

private:
    std::filesystem::path m_path;
};
