// BMP files, and icons, whose pictures are bitmaps of that kind or PNG files.
#include "platform/imageio/readers/Dib.h"
#include "platform/imageio/readers/Readers.h"

namespace imageio {

namespace {

VipsImagePtr imageOf(const Dib& dib, const VipsSourcePtr& source)
{
    if (!dib.isSound())
        return nullptr;
    VipsImagePtr image = deferredImage(
        dib.layout(), [dib, held = held(source)](std::span<std::byte> pixels) { return dib.fill(pixels); });
    if (image && !dib.profile().empty())
        vips_image_set_blob_copy(image.get(), VIPS_META_ICC_NAME, dib.profile().data(), dib.profile().size());
    return image;
}

/// The picture with the most pixels, of those the one with the most bits.
Bytes largestIcon(const LittleEndian& file)
{
    constexpr std::size_t kHeader = 6, kEntry = 16;
    Bytes largest;
    std::uint32_t most = 0;
    for (std::size_t i = 0; i < file.u16(4); ++i) {
        const std::size_t entry = kHeader + i * kEntry;
        const auto side = [&](std::size_t at) { return file.u8(at) ? file.u8(at) : 256; };
        const std::uint32_t bits = file.u16(entry + 6),
                            worth = side(entry) * side(entry + 1) * 64 + std::min(bits, 63u);
        const Bytes content = file.part(file.u32(entry + 12), file.u32(entry + 8));
        if (worth > most && !content.empty()) {
            most = worth;
            largest = content;
        }
    }
    return largest;
}

} // namespace

void openBmp(OpenPicture& picture, const PictureInput&, int)
{
    constexpr std::size_t kFileHeader = 14;
    const LittleEndian file(PictureInput::wholeContent(picture.source.get()));
    const std::size_t pixelsAt = file.u32(10);
    picture.image = imageOf(
        Dib(file.part(kFileHeader), pixelsAt > kFileHeader ? pixelsAt - kFileHeader : 0, false), picture.source);
}

void openIco(OpenPicture& picture, const PictureInput&, int maxSide)
{
    const Bytes icon = largestIcon(LittleEndian(PictureInput::wholeContent(picture.source.get())));
    if (icon.empty())
        return;
    const Result<PictureInput> inner = PictureInput::fromMemory(icon);
    if (inner && inner->isOf(PictureFormat::Png))
        openInner(picture, *inner, maxSide);
    else
        picture.image = imageOf(Dib(icon, 0, true), picture.source);
}

} // namespace imageio
