// Compositing and blending of an image with a background.
#include "platform/coreimage/kernel/PointwiseFilter.h"

namespace ci {
namespace {

const RecipeFilter sourceOverCompositing{{.name = "CISourceOverCompositing",
                                             .displayName = "Source Over",
                                             .category = kCICategoryCompositeOperation,
                                             .usage = Anything,
                                             .inputs = {image(), image("inputBackgroundImage", "Background Image")}},
    [](const Values& in) { return in.image().compositedOver(in.image("inputBackgroundImage")); }};

/// The image where the background is.
template <class V>
struct SourceIn {
    explicit SourceIn(const Inputs<V>&) { }
    Pixel<V> operator()(const Pixel<V>& p, const Pixel<V>& under) const { return p * under.a; }
    static CIRect extent(const Values& in)
    {
        return in.image().extent().intersected(in.image("inputBackgroundImage").extent());
    }
};

const BlendFilter<SourceIn> sourceInCompositing{{.name = "CISourceInCompositing",
    .displayName = "Source In",
    .category = kCICategoryCompositeOperation,
    .usage = Anything,
    .inputs = {image(), image("inputBackgroundImage", "Background Image")}}};

} // namespace
} // namespace ci
