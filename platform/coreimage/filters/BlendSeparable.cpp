// Blend modes that treat every channel alone. `s` is the image's value, `b` that of the background under it.
#include "platform/coreimage/filters/Blend.h"

namespace ci {
namespace {

#define CI_SEPARABLE(Kernel)                                                                                           \
    template <class V>                                                                                                 \
    struct Kernel : SeparableBlend<Kernel<V>, V> {                                                                     \
        using SeparableBlend<Kernel<V>, V>::SeparableBlend;                                                            \
        static V channel(const V& s, const V& b);                                                                      \
    };                                                                                                                 \
    template <class V>                                                                                                 \
    V Kernel<V>::channel(const V& s, const V& b)

// b / (1 - s); black stays black, also under white.
template <class V>
V dodge(const V& s, const V& b)
{
    const V lit = select(s < V(1.0f), min(V(b / max(V(1.0f - s), 1e-6f)), 1.0f), V(1.0f));
    return select(b > V(0.0f), lit, V(0.0f));
}

// The same seen from white.
template <class V>
V burn(const V& s, const V& b)
{
    return 1.0f - dodge(V(1.0f - s), V(1.0f - b));
}

template <class V>
V screen(const V& s, const V& b)
{
    return s + b - s * b;
}

template <class V>
V hardLight(const V& s, const V& b)
{
    return select(s <= V(0.5f), 2.0f * s * b, screen(V(2.0f * s - 1.0f), b));
}

CI_SEPARABLE(ColorDodge) { return dodge(s, b); }
CI_SEPARABLE(ColorBurn) { return burn(s, b); }
CI_SEPARABLE(Multiply) { return s * b; }
CI_SEPARABLE(Screen) { return screen(s, b); }
CI_SEPARABLE(Darken) { return min(s, b); }
CI_SEPARABLE(Lighten) { return max(s, b); }
CI_SEPARABLE(Difference) { return abs(V(s - b)); }
CI_SEPARABLE(Exclusion) { return s + b - 2.0f * s * b; }
CI_SEPARABLE(HardLight) { return hardLight(s, b); }
CI_SEPARABLE(Overlay) { return hardLight(b, s); }
CI_SEPARABLE(LinearBurn) { return max(V(s + b - 1.0f), 0.0f); }
CI_SEPARABLE(LinearDodge) { return min(V(s + b), 1.0f); }
CI_SEPARABLE(LinearLight) { return saturate(V(2.0f * s + b - 1.0f)); }
CI_SEPARABLE(PinLight) { return min(max(b, V(2.0f * s - 1.0f)), V(2.0f * s)); }
CI_SEPARABLE(VividLight) { return select(s <= V(0.5f), burn(V(2.0f * s), b), dodge(V(2.0f * s - 1.0f), b)); }
/// The background taken from the image.
CI_SEPARABLE(Subtract) { return max(V(s - b), 0.0f); }
/// The image divided by the background.
CI_SEPARABLE(Divide)
{
    const V quotient = select(b > V(0.0f), min(V(s / max(b, 1e-6f)), 1.0f), V(1.0f));
    return select(s > V(0.0f), quotient, V(0.0f));
}
/// The W3C's form: its curve for light images is a polynomial below a quarter, the square root above.
CI_SEPARABLE(SoftLight)
{
    const V root = select(b <= V(0.25f), ((16.0f * b - 12.0f) * b + 4.0f) * b, sqrt(max(b, 0.0f)));
    const V amount = 2.0f * s - 1.0f;
    return mulAdd(amount, select(s <= V(0.5f), b - b * b, root - b), b);
}

const BlendModeFilter<ColorDodge> colorDodge("ColorDodge", "Color Dodge");
const BlendModeFilter<ColorBurn> colorBurn("ColorBurn", "Color Burn");
const BlendModeFilter<Multiply> multiply("Multiply", "Multiply");
const BlendModeFilter<Screen> screenMode("Screen", "Screen");
const BlendModeFilter<Darken> darken("Darken", "Darken");
const BlendModeFilter<Lighten> lighten("Lighten", "Lighten");
const BlendModeFilter<Difference> difference("Difference", "Difference");
const BlendModeFilter<Exclusion> exclusion("Exclusion", "Exclusion");
const BlendModeFilter<HardLight> hardLightMode("HardLight", "Hard Light");
const BlendModeFilter<Overlay> overlay("Overlay", "Overlay");
const BlendModeFilter<LinearBurn> linearBurn("LinearBurn", "Linear Burn");
const BlendModeFilter<LinearDodge> linearDodge("LinearDodge", "Linear Dodge");
const BlendModeFilter<LinearLight> linearLight("LinearLight", "Linear Light");
const BlendModeFilter<PinLight> pinLight("PinLight", "Pin Light");
const BlendModeFilter<VividLight> vividLight("VividLight", "Vivid Light");
const BlendModeFilter<Subtract> subtract("Subtract", "Subtract");
const BlendModeFilter<Divide> divide("Divide", "Divide");
const BlendModeFilter<SoftLight> softLight("SoftLight", "Soft Light");

} // namespace
} // namespace ci
