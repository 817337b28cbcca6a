// Exif, IPTC and XMP, read by Exiv2.
#include "platform/imageio/Exiv2Image.h"
#include "platform/imageio/ImageLog.h"
#include "platform/imageio/PropertyTree.h"

#include <algorithm>
#include <array>
#include <mutex>

namespace imageio {

namespace {

constexpr long kLongestBinary = 256; // bytes; longer ones are only counted

/// Where tags of the directory `group` go; empty for those that describe only how the file is laid out.
std::string_view placeOf(std::string_view group)
{
    if (group == "Image")
        return "{TIFF}";
    if (group == "Photo" || group == "Iop")
        return "{Exif}";
    if (group == "GPSInfo")
        return "{GPS}";
    if (group.starts_with("Thumbnail") || group.starts_with("SubImage") || group.starts_with("SubThumb")
        || group == "MakerNote" || group.starts_with("Image"))
        return {};
    return "maker";
}

/// Positions and lengths of other parts of the file say nothing to a reader.
bool isLayout(std::string_view tag)
{
    constexpr std::array<std::string_view, 12> tags{"ExifTag", "GPSTag", "InteroperabilityTag", "MakerNote",
        "StripOffsets", "StripByteCounts", "TileOffsets", "TileByteCounts", "JPEGInterchangeFormat",
        "JPEGInterchangeFormatLength", "InterColorProfile", "SubIFDs"};
    return std::ranges::find(tags, tag) != tags.end() || tag == "XMLPacket" || tag == "IPTCNAA"
        || tag == "ImageResources" || tag == "Padding" || tag == "OffsetSchema";
}

void replaceAll(std::string& text, std::string_view from, std::string_view to)
{
    for (std::size_t at = text.find(from); at != std::string::npos; at = text.find(from, at + to.size()))
        text.replace(at, from.size(), to);
}

std::string readableValue(const Exiv2::Exifdatum& datum, const Exiv2::ExifData& all)
{
    const bool isBinary = datum.typeId() == Exiv2::undefined || datum.typeId() == Exiv2::unsignedByte;
    if (isBinary && datum.size() > kLongestBinary)
        return std::string("(").append(std::to_string(datum.size())).append(" bytes)");
    std::string text = datum.print(&all);
    if (text.size() > 1 && text[0] == 'F' && std::isdigit(static_cast<unsigned char>(text[1])))
        text.replace(0, 1, "f/"); // F2.8
    if (datum.groupName() == "GPSInfo")
        replaceAll(text, "deg", "°");
    return text;
}

void addExif(const Exiv2::ExifData& all, Properties& properties)
{
    for (const Exiv2::Exifdatum& datum : all) {
        const std::string group = datum.groupName(), tag = datum.tagName();
        const std::string_view place = placeOf(group);
        if (place.empty() || isLayout(tag))
            continue;
        Properties& target = place == "maker"
            ? groupIn(groupIn(properties, "{Exif}").children, "{" + group + "}").children
            : groupIn(properties, place).children;
        addValue(target, tag, readableValue(datum, all));
    }
}

void addIptc(const Exiv2::IptcData& all, Properties& properties)
{
    for (const Exiv2::Iptcdatum& datum : all)
        if (datum.tagName() != "CharacterSet")
            addValue(groupIn(properties, "{IPTC}").children, datum.tagName(), datum.print());
}

void addXmp(const Exiv2::XmpData& all, Properties& properties)
{
    for (const Exiv2::Xmpdatum& datum : all)
        addValue(groupIn(properties, "{XMP}").children, datum.groupName() + ":" + datum.tagName(), datum.print());
}

/// A group that only layout was left of would show as a value without text.
void dropEmptyGroups(Properties& properties)
{
    for (PictureProperty& property : properties)
        dropEmptyGroups(property.children);
    std::erase_if(properties,
        [](const PictureProperty& property) { return property.children.empty() && property.value.empty(); });
}

} // namespace

void prepareExiv2()
{
    static std::once_flag once;
    std::call_once(once, [] {
        Exiv2::LogMsg::setHandler([](int, const char* message) {
            const std::string line(message);
            imageLog(line.substr(0, line.find_last_not_of("\r\n") + 1));
        });
        // Its XMP parser works for one thread at a time.
        static std::recursive_mutex oneAtATime;
        Exiv2::XmpParser::initialize(
            [](void* mutex, bool locks) {
                auto& guard = *static_cast<std::recursive_mutex*>(mutex);
                locks ? guard.lock() : guard.unlock();
            },
            &oneAtATime);
#if !EXIV2_TEST_VERSION(0, 28, 0)
        Exiv2::enableBMFF(); // HEIF and AVIF, which newer ones read unasked
#endif
    });
}

std::string plainPath(const std::filesystem::path& file) { return std::filesystem::absolute(file).string(); }

void addMetadata(const PictureInput& input, Properties& properties)
{
    try {
        const auto image = exiv2Image(input);
        image->readMetadata();
        addExif(image->exifData(), properties);
        addIptc(image->iptcData(), properties);
        addXmp(image->xmpData(), properties);
    } catch (const std::exception& error) { // also for formats that carry no metadata
        imageLog(input.name() + ": " + error.what());
    }
    dropEmptyGroups(properties);
}

} // namespace imageio
