#include "platform/imageio/MetadataCopy.h"

#include "platform/imageio/Exiv2Image.h"
#include "platform/imageio/ImageLog.h"
#include "platform/imageio/InputReading.h"
#include "platform/imageio/Parcel.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <iterator>
#include <span>
#include <string_view>

struct PictureMetadata::Entries {
    Exiv2::ExifData exif;
    Exiv2::IptcData iptc;
    Exiv2::XmpData xmp;
    Exiv2::ByteOrder byteOrder = Exiv2::invalidByteOrder; // that of maker notes, whose bytes stay as they are
    double dotsPerInch = 0;
};

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
    constexpr std::array<std::string_view, 17> tags{"ImageDescription", "DocumentName", "PageName", "Make", "Model",
        "Software", "DateTime", "Artist", "HostComputer", "Copyright", "Rating", "RatingPercent", "XPTitle",
        "XPComment", "XPAuthor", "XPKeywords", "XPSubject"};
    return isOneOf(tag, tags);
}

bool isPreview(std::string_view tag) // those in maker notes, too
{
    return tag.find("Preview") != tag.npos || tag.find("Thumbnail") != tag.npos;
}

bool staysTrue(const Exiv2::Exifdatum& datum)
{
    const std::string group = datum.groupName(), tag = datum.tagName();
    if (isPreview(tag) || isPreview(group))
        return false;
    if (group == "Image")
        return isAboutThePicture(tag);
    if (group == "Photo")
        return tag != "PixelXDimension" && tag != "PixelYDimension" && tag != "ColorSpace"
            && tag != "InteroperabilityTag";
    return group != "Iop" && !group.starts_with("SubImage") && !group.starts_with("SubThumb")
        && !group.starts_with("Image");
}

bool staysTrue(const Exiv2::Xmpdatum& datum)
{
    constexpr std::array<std::string_view, 12> keys{"Xmp.tiff.Orientation", "Xmp.tiff.ImageWidth",
        "Xmp.tiff.ImageLength", "Xmp.tiff.BitsPerSample", "Xmp.exif.PixelXDimension", "Xmp.exif.PixelYDimension",
        "Xmp.exif.ColorSpace", "Xmp.photoshop.ICCProfile", "Xmp.tiff.PhotometricInterpretation", "Xmp.tiff.XResolution",
        "Xmp.tiff.YResolution", "Xmp.tiff.ResolutionUnit"};
    const std::string key = datum.key(), group = datum.groupName();
    // Camera raw settings would be carried out a second time, on pixels that have them already.
    return !isOneOf(key, keys) && !key.starts_with("Xmp.xmp.Thumbnails") && group != "crs";
}

template <class Datum>
bool tellsThePlace(const Datum& datum)
{
    constexpr std::array<std::string_view, 8> tags{
        "City", "SubLocation", "ProvinceState", "State", "CountryCode", "CountryName", "Country", "Location"};
    const std::string group = datum.groupName(), tag = datum.tagName();
    return group == "GPSInfo" || tag.starts_with("GPS") || tag.starts_with("Location") || isOneOf(tag, tags);
}

template <class Data>
void erasePlace(Data& data)
{
    for (auto datum = data.begin(); datum != data.end();)
        datum = tellsThePlace(*datum) ? data.erase(datum) : std::next(datum);
}

bool takesAnything(const Exiv2::Image& image)
{
    return std::ranges::any_of(std::array{Exiv2::mdExif, Exiv2::mdIptc, Exiv2::mdXmp},
        [&](Exiv2::MetadataId kind) { return (image.checkMode(kind) & Exiv2::amWrite) != 0; });
}

double dotsPerInchOf(const Exiv2::ExifData& exif)
{
    constexpr double kCentimetersPerInch = 2.54;
    constexpr float kPerCentimeter = 3; // as Exif counts units
    const auto across = exif.findKey(Exiv2::ExifKey("Exif.Image.XResolution"));
    const auto unit = exif.findKey(Exiv2::ExifKey("Exif.Image.ResolutionUnit"));
    if (across == exif.end() || across->count() == 0)
        return 0;
    const double number = across->toFloat();
    const bool isPerCentimeter = unit != exif.end() && unit->count() > 0 && unit->toFloat() == kPerCentimeter;
    const double perInch = isPerCentimeter ? number * kCentimetersPerInch : number;
    return perInch >= 1 && perInch < 100'000 ? perInch : 0; // files also say 0, or nonsense
}

bool isEmpty(const PictureMetadata::Entries& entries)
{
    return entries.exif.empty() && entries.iptc.empty() && entries.xmp.empty();
}

std::unique_ptr<PictureMetadata::Entries> entriesOf(const Exiv2::Image& image)
{
    auto entries = std::make_unique<PictureMetadata::Entries>();
    for (const Exiv2::Exifdatum& datum : image.exifData())
        if (staysTrue(datum))
            entries->exif.add(datum);
    for (const Exiv2::Xmpdatum& datum : image.xmpData())
        if (staysTrue(datum))
            entries->xmp.add(datum);
    entries->iptc = image.iptcData();
    entries->byteOrder = image.byteOrder();
    entries->dotsPerInch = dotsPerInchOf(image.exifData());
    return isEmpty(*entries) && entries->dotsPerInch == 0 ? nullptr : std::move(entries);
}

void putExif(const PictureMetadata::Entries& entries, Exiv2::ExifData& target, const NewFile& about)
{
    for (const Exiv2::Exifdatum& datum : entries.exif)
        target[datum.key()].setValue(&datum.value());
    target["Exif.Image.Orientation"] = kUpright;
    if (about.isSrgb) // other colors are told by the profile alone
        target["Exif.Photo.ColorSpace"] = kSrgb;
    target["Exif.Photo.PixelXDimension"] = std::uint32_t(about.width);
    target["Exif.Photo.PixelYDimension"] = std::uint32_t(about.height);
    if (about.dotsPerInch <= 0)
        return;
    constexpr int kHundredths = 100;
    constexpr std::uint16_t kInch = 2; // as Exif counts units
    const Exiv2::URational perInch(std::uint32_t(std::lround(about.dotsPerInch * kHundredths)), kHundredths);
    for (const char* key : {"Exif.Image.XResolution", "Exif.Image.YResolution"})
        target[key] = perInch;
    target["Exif.Image.ResolutionUnit"] = kInch;
}

std::string_view textOf(const Exiv2::byte* bytes, std::size_t size)
{
    return {reinterpret_cast<const char*>(bytes), bytes ? size : 0};
}

const Exiv2::byte* bytesOf(const std::string& text) { return reinterpret_cast<const Exiv2::byte*>(text.data()); }

const PictureMetadata::Entries& entriesOrNone(const PictureMetadata* metadata)
{
    static const PictureMetadata::Entries none;
    return metadata ? metadata->entries() : none;
}

void logLeftOut(const PictureMetadata* metadata, const std::exception& error)
{
    const std::string name = metadata ? metadata->file().filename().string() : "a new file";
    imageLog("Metadata of " + name + " are left out: " + error.what());
}

} // namespace

std::vector<std::byte> exifBlock(const PictureMetadata* metadata, const NewFile& about)
{
    const PictureMetadata::Entries& entries = entriesOrNone(metadata);
    if (entries.exif.empty() && about.dotsPerInch <= 0)
        return {};
    prepareExiv2();
    try {
        Exiv2::ExifData exif;
        putExif(entries, exif, about);
        const bool isBig = entries.byteOrder == Exiv2::bigEndian;
        Exiv2::Blob encoded;
        Exiv2::ExifParser::encode(encoded, isBig ? Exiv2::bigEndian : Exiv2::littleEndian, exif);
        constexpr std::string_view kStart("Exif\0\0", 6);
        const auto start = std::as_bytes(std::span(kStart)), rest = std::as_bytes(std::span(encoded));
        std::vector<std::byte> block(start.begin(), start.end());
        block.insert(block.end(), rest.begin(), rest.end());
        return block;
    } catch (const std::exception& error) {
        logLeftOut(metadata, error);
        return {};
    }
}

std::vector<std::byte> withMetadata(
    const PictureMetadata* metadata, std::vector<std::byte> encoded, const NewFile& about)
{
    const PictureMetadata::Entries& entries = entriesOrNone(metadata);
    prepareExiv2();
    try {
        const auto to = Exiv2::ImageFactory::open(
            reinterpret_cast<const Exiv2::byte*>(encoded.data()), static_cast<long>(encoded.size()));
        if (!takesAnything(*to))
            return encoded;
        to->readMetadata();
        if (to->mimeType() != "image/tiff") // where they also say how the pixels lie
            to->clearExifData();
        const bool hasNoOtherResolution = to->mimeType() == "image/webp";
        if (!entries.exif.empty() || (hasNoOtherResolution && about.dotsPerInch > 0))
            putExif(entries, to->exifData(), about);
        if (entries.byteOrder != Exiv2::invalidByteOrder)
            to->setByteOrder(entries.byteOrder);
        for (const Exiv2::Iptcdatum& datum : entries.iptc)
            to->iptcData().add(datum);
        for (const Exiv2::Xmpdatum& datum : entries.xmp)
            to->xmpData().add(datum);
        to->writeMetadata();
        Exiv2::BasicIo& bytes = to->io();
        if (bytes.open() != 0)
            return encoded;
        const auto* first = reinterpret_cast<const std::byte*>(bytes.mmap());
        return {first, first + bytes.size()};
    } catch (const std::exception& error) { // also for formats that carry no metadata
        logLeftOut(metadata, error);
        return encoded;
    }
}

} // namespace imageio

PictureMetadata::PictureMetadata(std::filesystem::path file, std::unique_ptr<Entries> entries)
    : m_file(std::move(file))
    , m_entries(std::move(entries))
{
}

PictureMetadata::~PictureMetadata() = default;

double PictureMetadata::dotsPerInch() const { return m_entries->dotsPerInch; }

std::shared_ptr<const PictureMetadata> PictureMetadata::withoutPlace() const
{
    auto entries = std::make_unique<Entries>(*m_entries);
    imageio::erasePlace(entries->exif);
    imageio::erasePlace(entries->iptc);
    imageio::erasePlace(entries->xmp);
    return std::make_shared<const PictureMetadata>(m_file, std::move(entries));
}

std::shared_ptr<const PictureMetadata> PictureMetadata::ofFile(const std::filesystem::path& file)
{
    const Result<imageio::PictureInput> input = imageio::PictureInput::fromFile(file);
    return input ? imageio::readMetadata(*input) : nullptr;
}

std::shared_ptr<const PictureMetadata> imageio::readMetadata(const PictureInput& input)
{
    try {
        const auto image = exiv2Image(input);
        image->readMetadata();
        std::unique_ptr<PictureMetadata::Entries> entries = entriesOf(*image);
        return entries ? std::make_shared<const PictureMetadata>(input.path(), std::move(entries)) : nullptr;
    } catch (const std::exception& error) { // also for formats that carry no metadata
        imageLog(input.name() + ": " + error.what());
        return nullptr;
    }
}

std::string imageio::packed(const PictureMetadata& metadata)
{
    const PictureMetadata::Entries& entries = metadata.entries();
    const bool isBig = entries.byteOrder == Exiv2::bigEndian;
    Exiv2::ExifData copy = entries.exif; // the encoder drops what doesn't fit
    Exiv2::Blob exif;
    Exiv2::ExifParser::encode(exif, isBig ? Exiv2::bigEndian : Exiv2::littleEndian, copy);
    const Exiv2::DataBuf iptc = Exiv2::IptcParser::encode(entries.iptc);
    std::string xmp;
    if (!entries.xmp.empty())
        Exiv2::XmpParser::encode(xmp, entries.xmp);
    Parcel parcel;
    parcel.put(entries.dotsPerInch).putText(textOf(exif.data(), exif.size()));
#if EXIV2_TEST_VERSION(0, 28, 0)
    parcel.putText(textOf(iptc.c_data(), iptc.size()));
#else
    parcel.putText(textOf(iptc.pData_, std::size_t(iptc.size_)));
#endif
    return parcel.putText(xmp).bytes();
}

std::shared_ptr<const PictureMetadata> imageio::unpackedMetadata(
    const std::filesystem::path& file, std::string_view bytes)
{
    prepareExiv2();
    try {
        Unpacking parcel(bytes);
        auto entries = std::make_unique<PictureMetadata::Entries>();
        entries->dotsPerInch = parcel.take<double>();
        const std::string exif = parcel.takeText(), iptc = parcel.takeText(), xmp = parcel.takeText();
        if (!exif.empty())
            entries->byteOrder = Exiv2::ExifParser::decode(entries->exif, bytesOf(exif), std::uint32_t(exif.size()));
        if (!iptc.empty())
            Exiv2::IptcParser::decode(entries->iptc, bytesOf(iptc), std::uint32_t(iptc.size()));
        if (!xmp.empty())
            Exiv2::XmpParser::decode(entries->xmp, xmp);
        return std::make_shared<const PictureMetadata>(file, std::move(entries));
    } catch (const std::exception& error) {
        imageLog(file.filename().string() + ": " + error.what());
        return nullptr;
    }
}
