// An example of a plug-in: one filter and the entry point.
#include "platform/coreimage/kernel/PointwiseFilter.h"

namespace {

using namespace ci;

template <class V>
struct Halve {
    static constexpr bool keepsAlpha = true;
    explicit Halve(const Inputs<V>& in)
        : share(in.scalar("inputShare"))
    {
    }
    Pixel<V> operator()(const Pixel<V>& p) const { return {p.r * share, p.g * share, p.b * share, p.a}; }
    V share;
};

} // namespace

extern "C" void lumivexRegisterFilters()
{
    registerFilter({.name = "ExampleHalveFilter",
        .displayName = "Halve",
        .category = kCICategoryColorEffect,
        .inputs = {image(), scalar("inputShare", "Share", {.standard = 0.5, .min = 0, .max = 1})},
        .output = &pointwiseImage<Halve>});
}
