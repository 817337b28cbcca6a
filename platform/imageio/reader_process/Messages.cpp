#include "platform/imageio/reader_process/Messages.h"

#include "platform/coreimage/CIColorProfile.h"

namespace imageio {

namespace {

constexpr int kDeepest = 8; // groups inside groups

void put(Parcel& parcel, const std::vector<PictureProperty>& properties)
{
    parcel.put(std::uint32_t(properties.size()));
    for (const PictureProperty& property : properties) {
        parcel.putText(property.key).putText(property.value);
        put(parcel, property.children);
    }
}

std::vector<PictureProperty> takeProperties(Unpacking& parcel, int depth)
{
    if (depth > kDeepest)
        throw std::runtime_error("properties without end");
    std::vector<PictureProperty> properties;
    for (auto count = parcel.take<std::uint32_t>(); count > 0; --count) {
        std::string key = parcel.takeText(), value = parcel.takeText();
        properties.push_back({std::move(key), std::move(value), takeProperties(parcel, depth + 1)});
    }
    return properties;
}

int takeSide(Unpacking& parcel)
{
    const int side = parcel.take<int>();
    if (side <= 0)
        throw std::runtime_error("a picture without pixels");
    return side;
}

} // namespace

Parcel packed(const ReadOptions& options)
{
    return Parcel()
        .put(options.maxPixels)
        .put(options.maxBytes)
        .put(options.maxSide)
        .put(std::int64_t(options.timeLimit.count()))
        .put(options.isIncomplete != nullptr);
}

ReadOptions unpackedOptions(std::string_view bytes, std::atomic<bool>* isIncomplete)
{
    Unpacking parcel(bytes);
    ReadOptions options;
    options.maxPixels = parcel.take<std::int64_t>();
    options.maxBytes = parcel.take<std::int64_t>();
    options.maxSide = parcel.take<int>();
    options.timeLimit = std::chrono::seconds(parcel.take<std::int64_t>());
    options.isIncomplete = parcel.takeBool() ? isIncomplete : nullptr;
    return options;
}

Parcel packed(const Failure& failure) { return Parcel().put(failure.reason).putText(failure.detail); }

Failure unpackedFailure(std::string_view bytes, const std::string& subject)
{
    Unpacking parcel(bytes);
    const Reason reason = parcel.takeEnum(Reason::NoMemoryToSave);
    return {reason, subject, parcel.takeText()};
}

Parcel packed(const BitmapShape& shape)
{
    return Parcel()
        .put(shape.width)
        .put(shape.height)
        .put(shape.format)
        .put(shape.alpha)
        .putText(packedSpace(shape.space))
        .put(shape.isIncomplete);
}

BitmapShape unpackedShape(std::string_view bytes)
{
    Unpacking parcel(bytes);
    const int width = takeSide(parcel), height = takeSide(parcel);
    const CIFormat format = parcel.takeEnum(CIFormat::RGBAf);
    const CIAlpha alpha = parcel.takeEnum(CIAlpha::Premultiplied);
    CIColorSpace space = CIColorSpace::SRGB;
    try {
        space = unpackedSpace(parcel.takeText());
    } catch (const std::invalid_argument& error) {
        throw std::runtime_error(error.what());
    }
    return {width, height, format, alpha, space, parcel.takeBool()};
}

Parcel packed(const PictureInfo& info)
{
    return Parcel()
        .put(info.width)
        .put(info.height)
        .put(info.bitsPerComponent)
        .put(info.isFloat)
        .put(info.hasAlpha)
        .putText(info.profileName)
        .put(info.format);
}

PictureInfo unpackedInfo(std::string_view bytes)
{
    Unpacking parcel(bytes);
    PictureInfo info;
    info.width = takeSide(parcel);
    info.height = takeSide(parcel);
    info.bitsPerComponent = parcel.take<int>();
    info.isFloat = parcel.takeBool();
    info.hasAlpha = parcel.takeBool();
    info.profileName = parcel.takeText();
    info.format = parcel.takeEnum(fileFormats().back().format);
    return info;
}

Parcel packed(const PictureFileProperties& properties)
{
    Parcel parcel;
    parcel.putText(properties.typeIdentifier).put(std::uint64_t(properties.fileSize));
    put(parcel, properties.properties);
    return parcel;
}

PictureFileProperties unpackedProperties(std::string_view bytes)
{
    Unpacking parcel(bytes);
    PictureFileProperties properties;
    properties.typeIdentifier = parcel.takeText();
    properties.fileSize = parcel.take<std::uint64_t>();
    properties.properties = takeProperties(parcel, 0);
    return properties;
}

} // namespace imageio
