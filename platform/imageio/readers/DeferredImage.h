// A picture of libvips whose pixels a decoder makes when the first of them is asked for.
#pragma once

#include "platform/imageio/Vips.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <span>

namespace imageio {

struct PixelLayout {
    int width, height; // px
    int bands;
    VipsBandFormat format;
    VipsInterpretation interpretation;
};

/// `decode` fills the rows, which are packed and come from top to bottom, once, on any thread. It answers false or
/// throws when it can't; that becomes an error of libvips. Null with a pending libvips error for a size that libvips
/// lacks.
VipsImagePtr deferredImage(const PixelLayout& layout, std::function<bool(std::span<std::byte> pixels)> decode);

/// Whether so many pixels, at least one, can be meant by a file of that many bytes, of which each stands for so many at
/// most.
bool fitsInto(std::size_t bytes, std::int64_t width, std::int64_t height, std::int64_t pixelsPerByte);

/// Keeps the source, and the bytes that it has mapped, for a decoder.
std::shared_ptr<VipsSource> held(const VipsSourcePtr& source);

} // namespace imageio
