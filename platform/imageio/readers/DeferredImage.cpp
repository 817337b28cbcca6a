#include "platform/imageio/readers/DeferredImage.h"

#include <cstring>
#include <mutex>
#include <vector>

namespace imageio {

namespace {

struct Decoder {
    std::function<bool(std::span<std::byte>)> decode;
    std::once_flag once;
    std::vector<std::byte> pixels;
    bool isDone = false;

    void run(std::size_t bytes)
    {
        try {
            pixels.resize(bytes);
            isDone = decode(pixels);
        } catch (const std::exception& error) {
            vips_error("lumivex", "%s", error.what());
        }
        decode = nullptr; // and what it holds
    }
};

int generate(VipsRegion* region, void*, void* argument, void*, gboolean*)
{
    auto& decoder = *static_cast<Decoder*>(argument);
    const std::size_t line = VIPS_IMAGE_SIZEOF_LINE(region->im), pixel = VIPS_IMAGE_SIZEOF_PEL(region->im);
    std::call_once(decoder.once, [&] { decoder.run(line * std::size_t(region->im->Ysize)); });
    if (!decoder.isDone) {
        vips_error("lumivex", "the pixels can't be decoded");
        return -1;
    }
    const VipsRect& area = region->valid;
    for (int y = area.top; y < area.top + area.height; ++y)
        std::memcpy(VIPS_REGION_ADDR(region, area.left, y),
            decoder.pixels.data() + line * std::size_t(y) + pixel * std::size_t(area.left),
            pixel * std::size_t(area.width));
    return 0;
}

} // namespace

VipsImagePtr deferredImage(const PixelLayout& layout, std::function<bool(std::span<std::byte>)> decode)
{
    const auto isSide = [](int side) { return side > 0 && side <= VIPS_MAX_COORD; };
    if (!isSide(layout.width) || !isSide(layout.height)) { // libvips would take another size, and too little memory
        vips_error("lumivex", "there are no pictures of %d x %d pixels", layout.width, layout.height);
        return nullptr;
    }
    VipsImagePtr image(vips_image_new());
    auto* decoder = new Decoder;
    decoder->decode = std::move(decode);
    g_object_set_data_full(
        G_OBJECT(image.get()), "lumivex-decoder", decoder, [](void* held) { delete static_cast<Decoder*>(held); });
    vips_image_init_fields(image.get(), layout.width, layout.height, layout.bands, layout.format, VIPS_CODING_NONE,
        layout.interpretation, 1, 1);
    if (vips_image_pipelinev(image.get(), VIPS_DEMAND_STYLE_THINSTRIP, nullptr) != 0
        || vips_image_generate(image.get(), nullptr, generate, nullptr, decoder, nullptr) != 0)
        return nullptr;
    return image;
}

bool fitsInto(std::size_t bytes, std::int64_t width, std::int64_t height, std::int64_t pixelsPerByte)
{
    return width > 0 && height > 0 && width <= VIPS_MAX_COORD && height <= VIPS_MAX_COORD
        && width * height / pixelsPerByte <= std::int64_t(bytes);
}

std::shared_ptr<VipsSource> held(const VipsSourcePtr& source)
{
    g_object_ref(source.get());
    return {source.get(), ObjectUnref()};
}

} // namespace imageio
