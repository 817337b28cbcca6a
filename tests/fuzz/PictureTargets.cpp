#include "tests/fuzz/Targets.h"

#include "platform/imageio/ImageLog.h"
#include "platform/imageio/MetadataCopy.h"
#include "platform/imageio/PictureProperties.h"
#include "platform/imageio/PictureReader.h"
#include "platform/imageio/PictureWriter.h"
#include "tests/fuzz/MemoryFile.h"

#include <cstdlib>

namespace {

[[maybe_unused]] const bool isQuiet = [] {
    setImageLog([](std::string_view) {});
    return true;
}();

void require(bool condition)
{
    if (!condition)
        std::abort();
}

std::vector<std::byte> smallPicture(PictureFormat format)
{
    return *encodePicture(CIBitmap(4, 4, CIFormat::RGBA8, CIAlpha::Opaque), {.format = format});
}

} // namespace

void fuzzPicture(FuzzBytes content)
{
    constexpr std::int64_t kMaxPixels = 2'000'000;
    const Result<CIBitmap> read = readPicture(content,
        {.maxPixels = kMaxPixels, .maxSide = content.size() % 2 ? 200 : 0, .timeLimit = std::chrono::seconds(10)});
    require(
        read ? !read->isNull() && std::int64_t(read->width()) * read->height() <= kMaxPixels : !read.message().empty());
}

void fuzzMetadata(FuzzBytes content)
{
    static const std::vector<std::byte> targets[] = {smallPicture(PictureFormat::Jpeg),
        smallPicture(PictureFormat::Tiff), smallPicture(PictureFormat::Png), smallPicture(PictureFormat::WebP)};
    const MemoryFile file(content);
    static_cast<void>(readPictureInfo(file.path()));
    const Result<PictureFileProperties> properties = readPictureProperties(file.path());
    require(properties || !properties.message().empty());
    if (const auto metadata = PictureMetadata::ofFile(file.path()))
        for (const std::vector<std::byte>& target : targets) {
            const std::vector<std::byte> written = imageio::withMetadata(metadata.get(), target, {4, 4, 0});
            const Result<CIBitmap> back = readPicture(written);
            require(back && back->width() == 4); // whatever the entries, the picture is whole
        }
}
