// From the components of a JPEG 2000 codestream to colors and alpha.
#pragma once

#include "platform/imageio/readers/Jp2Boxes.h"

#include <string>

struct opj_image;

namespace imageio {

/// Which channels make the picture, and how.
struct Jp2Channels {
    std::vector<Jp2Mapping> all;
    std::vector<int> colors; // indices into `all`: grey, or red, green, blue, or what `space` says
    std::optional<int> alpha;
    bool isMultiplied = false; // colors hold the product with alpha
    Jp2Color space = Jp2Color::Srgb;
    bool isDeep = false; // more than 8 bits
    int width = 0, height = 0; // px, those of the component with most samples
};

/// Nothing, with the reason in `refusal`, for what can't be shown as it is meant. `image` needs its header only; with
/// `reduce` each side counts as halved so many times.
std::optional<Jp2Channels> channelsOf(const opj_image& image, const Jp2Boxes& boxes, int reduce, std::string& refusal);

/// Fills packed rows of 8- or 16-bit components, alpha straight and last; sYCC and Lab have become sRGB. False when a
/// component lacks its samples.
bool composeJp2(const opj_image& decoded, const Jp2Boxes& boxes, const Jp2Channels& channels, int reduce,
    std::span<std::byte> pixels);

} // namespace imageio
