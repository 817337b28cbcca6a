#include "tests/imageio/PictureFiles.h"

#include <map>

namespace {

int sizeOfType(int type)
{
    switch (type) {
    case 3:
        return 2;
    case 4:
        return 4;
    case 5:
    case 10:
        return 4; // a rational is two of these
    default:
        return 1;
    }
}

} // namespace

Bytes tiffFile(int width, int height, int samples, int bits, int photometric, const Bytes& pixels,
    const std::vector<TiffEntry>& entries)
{
    std::map<int, TiffEntry> all;
    const auto set = [&all](TiffEntry entry) { all[entry.tag] = std::move(entry); };
    set({256, 4, {width}});
    set({257, 4, {height}});
    set({258, 3, std::vector<std::int64_t>(std::size_t(samples), bits)});
    set({259, 3, {1}});
    set({262, 3, {photometric}});
    set({273, 4, {8}});
    set({277, 3, {samples}});
    set({278, 4, {height}});
    set({279, 4, {std::int64_t(pixels.size())}});
    for (const TiffEntry& entry : entries)
        set(entry);

    Bytes tiff = bytesOf(std::string_view("II*\0", 4));
    Bytes outside, directory;
    const std::size_t start = 8 + pixels.size() + pixels.size() % 2;
    const std::size_t outsideStart = start + 2 + 12 * all.size() + 4;
    put(tiff, std::uint32_t(start), 4);
    append(tiff, pixels);
    tiff.resize(start);
    put(directory, std::uint32_t(all.size()), 2);
    for (const auto& [tag, entry] : all) {
        Bytes values;
        for (const std::int64_t value : entry.values)
            put(values, std::uint32_t(value), sizeOfType(entry.type));
        const bool isRational = entry.type == 5 || entry.type == 10;
        put(directory, std::uint32_t(tag), 2);
        put(directory, std::uint32_t(entry.type), 2);
        put(directory, std::uint32_t(entry.values.size() / (isRational ? 2 : 1)), 4);
        if (values.size() > 4) {
            put(directory, std::uint32_t(outsideStart + outside.size()), 4);
            append(outside, values);
            outside.resize((outside.size() + 1) / 2 * 2);
        } else {
            values.resize(4);
            append(directory, values);
        }
    }
    put(directory, 0, 4);
    append(tiff, directory);
    append(tiff, outside);
    return tiff;
}

Bytes rawFile()
{
    constexpr int kWidth = 64, kHeight = 48;
    Bytes pixels;
    for (int y = 0; y < kHeight; ++y)
        for (int x = 0; x < kWidth; ++x)
            put(pixels, x < kWidth / 2 ? 3000 : 500, 2);
    const std::vector<std::int64_t> model = {'T', 'e', 's', 't', 0};
    return tiffFile(kWidth, kHeight, 1, 16, 32803, pixels,
        {{254, 4, {0}}, {271, 2, model}, {272, 2, model},
            {33421, 3, {2, 2}}, // color filter array: red green, green blue
            {33422, 1, {0, 1, 1, 2}}, {50706, 1, {1, 4, 0, 0}}, {50708, 2, model}, {50717, 4, {4095}}, // white level
            {50721, 10, {1, 1, 0, 1, 0, 1, 0, 1, 1, 1, 0, 1, 0, 1, 0, 1, 1, 1}}, // XYZ to camera
            {50728, 5, {1, 1, 1, 1, 1, 1}}, // neutral
            {50778, 3, {21}}}); // daylight
}
