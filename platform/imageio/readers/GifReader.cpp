// GIF: the first picture, which need not cover the canvas.
#include "platform/imageio/readers/FileBytes.h"
#include "platform/imageio/readers/Readers.h"

namespace imageio {

namespace {

std::size_t paletteBytes(std::uint32_t flags) { return flags & 0x80 ? std::size_t(3) << ((flags & 7) + 1) : 0; }

/// Where the first picture lies on the canvas; empty when there is none.
VipsRect firstPicture(const LittleEndian& file)
{
    constexpr std::size_t kHeader = 13;
    constexpr std::uint32_t kExtension = 0x21, kPicture = 0x2c;
    std::size_t at = kHeader + paletteBytes(file.u8(10));
    while (file.u8(at) == kExtension) {
        at += 2;
        while (const std::size_t size = file.u8(at))
            at += 1 + size;
        ++at;
    }
    if (file.u8(at) != kPicture)
        return {};
    return {int(file.u16(at + 1)), int(file.u16(at + 3)), int(file.u16(at + 5)), int(file.u16(at + 7))};
}

/// `picture` alone, on a transparent canvas.
VipsImagePtr onCanvas(VipsImage* canvas, const VipsRect& picture)
{
    const VipsRect all{0, 0, vips_image_get_width(canvas), vips_image_get_height(canvas)};
    VipsRect shown;
    vips_rect_intersectrect(&all, &picture, &shown);
    if (vips_rect_isempty(&shown) || vips_rect_includesrect(&shown, &all))
        return nullptr;
    VipsImagePtr part = derive([&](VipsImage** out) {
        return vips_extract_area(canvas, out, shown.left, shown.top, shown.width, shown.height, nullptr);
    });
    if (part)
        part = derive([&](VipsImage** out) { return vips_addalpha(part.get(), out, nullptr); });
    return part ? derive([&](VipsImage** out) {
        return vips_embed(part.get(), out, shown.left, shown.top, all.width, all.height, nullptr);
    })
                : nullptr;
}

} // namespace

void openGif(OpenPicture& picture, const PictureInput&, int)
{
    const LittleEndian file(PictureInput::wholeContent(picture.source.get()));
    picture.image = load("gifload_source", picture.source.get());
    if (!picture.image || vips_image_hasalpha(picture.image.get()))
        return;
    if (VipsImagePtr placed = onCanvas(picture.image.get(), firstPicture(file)))
        picture.image = std::move(placed);
}

} // namespace imageio
