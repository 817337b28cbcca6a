#include "platform/imageio/MetadataCopy.h"

#include "platform/imageio/ImageLog.h"

#include <exiv2/exiv2.hpp>

#include <algorithm>
#include <array>
#include <cstdint>
#include <string_view>

namespace imageio {

namespace {

constexpr std::uint16_t kSrgb = 1, kUpright = 1; // as Exif counts

template <std::size_t count>
bool isOneOf(std::string_view name, const std::array<std::string_view, count>& names)
{
    return std::ranges::find(names, name) != names.end();
}

/// Of a file's first directory, in which TIFF-like formats also say how the pixels are stored.
bool isAboutThePicture(std::string_view tag)
{
    constexpr std::array<std::string_view, 20> tags{"ImageDescription", "DocumentName", "PageName", "Make", "Model",
        "Software", "DateTime", "Artist", "HostComputer", "Copyright", "XResolution", "YResolution", "ResolutionUnit",
        "Rating", "RatingPercent", "XPTitle", "XPComment", "XPAuthor", "XPKeywords", "XPSubject"};
    return isOneOf(tag, tags);
}

bool staysTrue(const Exiv2::Exifdatum& datum)
{
    const std::string group = datum.groupName(), tag = datum.tagName();
    if (group == "Image")
        return isAboutThePicture(tag);
    if (group == "Photo")
        return tag != "PixelXDimension" && tag != "PixelYDimension" && tag != "ColorSpace"
            && tag != "InteroperabilityTag";
    return group != "Iop" && !group.starts_with("Thumbnail") && !group.starts_with("SubImage")
        && !group.starts_with("SubThumb") && !group.starts_with("Image");
}

bool staysTrue(const Exiv2::Xmpdatum& datum)
{
    constexpr std::array<std::string_view, 9> keys{"Xmp.tiff.Orientation", "Xmp.tiff.ImageWidth",
        "Xmp.tiff.ImageLength", "Xmp.tiff.BitsPerSample", "Xmp.exif.PixelXDimension", "Xmp.exif.PixelYDimension",
        "Xmp.exif.ColorSpace", "Xmp.photoshop.ICCProfile", "Xmp.tiff.PhotometricInterpretation"};
    const std::string key = datum.key(), group = datum.groupName();
    // Camera raw settings would be carried out a second time, on pixels that have them already.
    return !isOneOf(key, keys) && !key.starts_with("Xmp.xmp.Thumbnails") && group != "crs";
}

bool takesAnything(const Exiv2::Image& image)
{
    return std::ranges::any_of(std::array{Exiv2::mdExif, Exiv2::mdIptc, Exiv2::mdXmp},
        [&](Exiv2::MetadataId kind) { return (image.checkMode(kind) & Exiv2::amWrite) != 0; });
}

void carryExif(const Exiv2::Image& from, Exiv2::Image& to, int width, int height)
{
    Exiv2::ExifData& target = to.exifData();
    bool isCopied = false;
    for (const Exiv2::Exifdatum& datum : from.exifData())
        if (staysTrue(datum)) {
            target[datum.key()].setValue(&datum.value());
            isCopied = true;
        }
    if (!isCopied)
        return;
    to.setByteOrder(from.byteOrder()); // that of maker notes, whose bytes stay as they are
    target["Exif.Image.Orientation"] = kUpright;
    target["Exif.Photo.ColorSpace"] = kSrgb;
    target["Exif.Photo.PixelXDimension"] = std::uint32_t(width);
    target["Exif.Photo.PixelYDimension"] = std::uint32_t(height);
}

} // namespace

std::vector<std::byte> withMetadataOf(
    const std::filesystem::path& source, std::vector<std::byte> encoded, int width, int height)
{
    prepareExiv2();
    try {
        const auto from = Exiv2::ImageFactory::open(source.string());
        from->readMetadata();
        if (from->exifData().empty() && from->iptcData().empty() && from->xmpData().empty())
            return encoded;
        const auto to = Exiv2::ImageFactory::open(
            reinterpret_cast<const Exiv2::byte*>(encoded.data()), static_cast<long>(encoded.size()));
        if (!takesAnything(*to))
            return encoded;
        to->readMetadata();
        carryExif(*from, *to, width, height);
        for (const Exiv2::Iptcdatum& datum : from->iptcData())
            to->iptcData().add(datum);
        for (const Exiv2::Xmpdatum& datum : from->xmpData())
            if (staysTrue(datum))
                to->xmpData().add(datum);
        to->writeMetadata();
        Exiv2::BasicIo& bytes = to->io();
        if (bytes.open() != 0)
            return encoded;
        const auto* first = reinterpret_cast<const std::byte*>(bytes.mmap());
        return {first, first + bytes.size()};
    } catch (const std::exception& error) { // also for formats that carry no metadata
        imageLog(source.filename().string() + ": " + error.what());
        return encoded;
    }
}

} // namespace imageio
