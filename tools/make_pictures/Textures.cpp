#include "tools/make_pictures/Textures.h"

#include "tools/make_pictures/Noise.h"

#include <array>
#include <numeric>

namespace {

using Color = std::array<float, 3>;

/// Replaces every sample by its rank among all, 0...1.
void equalise(std::vector<float>& samples)
{
    std::vector<std::size_t> order(samples.size());
    std::iota(order.begin(), order.end(), std::size_t(0));
    std::stable_sort(order.begin(), order.end(), [&](std::size_t a, std::size_t b) { return samples[a] < samples[b]; });
    for (std::size_t rank = 0; rank < order.size(); ++rank)
        samples[order[rank]] = static_cast<float>(rank) / static_cast<float>(order.size() - 1);
}

/// Brightness of a round lamp of unit strength seen in direction (x, y, z) of a polished ball.
float lamp(float x, float y, float z, const Color& towards, float sharpness)
{
    const float length = std::hypot(towards[0], towards[1], towards[2]);
    const float cosine = (x * towards[0] + y * towards[1] + z * towards[2]) / length;
    return std::pow(std::max(cosine, 0.0f), sharpness);
}

/// OKLab to linear sRGB (B. Ottosson, 2020).
Color linearFromOklab(float lightness, float a, float b)
{
    const float l = lightness + 0.3963377774f * a + 0.2158037573f * b;
    const float m = lightness - 0.1055613458f * a - 0.0638541728f * b;
    const float s = lightness - 0.0894841775f * a - 1.2914855480f * b;
    const float l3 = l * l * l, m3 = m * m * m, s3 = s * s * s;
    return {4.0767416621f * l3 - 3.3077115913f * m3 + 0.2309699292f * s3,
        -1.2684380046f * l3 + 2.6097574011f * m3 - 0.3413193965f * s3,
        -0.0041960863f * l3 - 0.7034186147f * m3 + 1.7076147010f * s3};
}

/// 1 on the drawing of the marker, 0 beside it; its edges lie on pixel edges where they can.
float markerCoverage(float x, float y)
{
    const float dx = std::fabs(x - 8), dy = std::fabs(y - 8), distance = std::hypot(dx, dy);
    const bool ring = std::fabs(distance - 4.15f) < 0.8f;
    const bool dot = std::max(dx, dy) < 1;
    const bool ticks = std::min(dx, dy) < 1 && std::max(dx, dy) > 4 && std::max(dx, dy) < 7;
    return ring || dot || ticks ? 1.0f : 0.0f;
}

} // namespace

Raster smoothTexture()
{
    constexpr int kSize = 512, kPeriod = 5;
    Raster texture(kSize, kSize, 1);
    for (int y = 0; y < kSize; ++y)
        for (int x = 0; x < kSize; ++x) {
            const float u = (static_cast<float>(x) + 0.5f) * kPeriod / kSize;
            const float v = (static_cast<float>(y) + 0.5f) * kPeriod / kSize;
            // Pushed about a little, noise loses the grid it was made on; pushed hard it would fold.
            const float pushX = 0.16f * gradientNoise(u, v, 11, kPeriod);
            const float pushY = 0.16f * gradientNoise(u, v, 12, kPeriod);
            *texture.at(x, y) = gradientNoise(u + pushX, v + pushY, 13, kPeriod)
                + 0.22f * gradientNoise(2 * (u + pushX), 2 * (v + pushY), 14, 2 * kPeriod);
        }
    const float mean = std::accumulate(texture.samples.begin(), texture.samples.end(), 0.0f)
        / static_cast<float>(texture.samples.size());
    float reach = 0;
    for (const float sample : texture.samples)
        reach = std::max(reach, std::fabs(sample - mean));
    for (float& sample : texture.samples)
        sample = encodeSrgb(0.5f + 0.48f * (sample - mean) / reach);
    return texture;
}

Raster lightBall()
{
    constexpr int kSize = 512, kPerSide = 3; // samples per pixel side, for a clean outline
    Raster ball(kSize, kSize, 3);
    for (int y = 0; y < kSize; ++y)
        for (int x = 0; x < kSize; ++x) {
            Color sum = {};
            for (int sample = 0; sample < kPerSide * kPerSide; ++sample) {
                const float offsetX = (static_cast<float>(sample % kPerSide) + 0.5f) / kPerSide;
                const float offsetY = (static_cast<float>(sample / kPerSide) + 0.5f) / kPerSide;
                const float nx = (static_cast<float>(x) + offsetX) * 2 / kSize - 1;
                const float ny = 1 - (static_cast<float>(y) + offsetY) * 2 / kSize;
                const float square = nx * nx + ny * ny;
                Color light = {0.21f, 0.21f, 0.22f}; // the surround, middle grey
                if (square < 1) {
                    const float nz = std::sqrt(1 - square);
                    const float key = std::max(0.0f, (-0.45f * nx + 0.65f * ny + 0.61f * nz));
                    const float sky = 0.5f + 0.5f * ny;
                    const float edge = std::pow(1 - nz, 3.5f);
                    const float window = smoothStep(0.86f, 0.975f, lamp(nx, ny, nz, {-0.36f, 0.47f, 0.80f}, 1));
                    const float glow = lamp(nx, ny, nz, {-0.36f, 0.47f, 0.80f}, 14);
                    const float kicker = lamp(nx, ny, nz, {0.62f, -0.55f, 0.42f}, 10);
                    const Color skyTint = {0.92f, 0.96f, 1.06f}, keyTint = {1.03f, 1.0f, 0.95f};
                    for (std::size_t band = 0; band < 3; ++band)
                        light[band] = 0.025f + 0.10f * sky * skyTint[band] + 0.34f * key * keyTint[band] + 0.24f * glow
                            + 0.34f * window * keyTint[band] + 0.11f * kicker * skyTint[band]
                            + 0.16f * edge * sky * skyTint[band];
                }
                for (std::size_t band = 0; band < 3; ++band)
                    sum[band] += light[band];
            }
            for (std::size_t band = 0; band < 3; ++band)
                ball.at(x, y)[band] = encodeSrgb(sum[band] / (kPerSide * kPerSide));
        }
    return ball;
}

Raster restrictedShine()
{
    constexpr int kSize = 256;
    Raster shine(kSize, kSize, 4);
    for (int y = 0; y < kSize; ++y)
        for (int x = 0; x < kSize; ++x) {
            const float u = (static_cast<float>(x) + 0.5f) * 2 / kSize - 1;
            const float v = 1 - (static_cast<float>(y) + 0.5f) * 2 / kSize;
            // A long soft lamp across the upper half, brightest in its core.
            const float across = u * 0.94f + v * 0.34f, along = v * 0.94f - u * 0.34f - 0.28f;
            const float halo = std::exp(-(across * across * 3.2f + along * along * 9.0f));
            const float core = std::exp(-(across * across * 9.0f + along * along * 42.0f));
            const float alpha = 0.06f + 0.40f * halo + 0.48f * core;
            const float light = mixed(0.5f, 1.0f, smoothStep(0.0f, 0.5f, halo));
            for (int band = 0; band < 3; ++band)
                shine.at(x, y)[band] = encodeSrgb(light);
            shine.at(x, y)[3] = alpha;
        }
    return shine;
}

Raster colorMap()
{
    struct Stop {
        float place, hue, chroma; // hue in degrees of OKLab
    };
    constexpr std::array<Stop, 6> kStops = {{{0.0f, 282, 0.085f}, {0.22f, 293, 0.165f}, {0.45f, 352, 0.195f},
        {0.64f, 398, 0.175f}, {0.83f, 434, 0.135f}, {1.0f, 462, 0.060f}}};
    Raster map(256, 16, 3);
    for (int x = 0; x < map.width; ++x) {
        const float place = static_cast<float>(x) / static_cast<float>(map.width - 1);
        std::size_t next = 1;
        while (next + 1 < kStops.size() && kStops[next].place < place)
            ++next;
        const float t =
            smoothStep(0, 1, (place - kStops[next - 1].place) / (kStops[next].place - kStops[next - 1].place));
        const float hue = mixed(kStops[next - 1].hue, kStops[next].hue, t) * 3.14159265f / 180;
        const float chroma = mixed(kStops[next - 1].chroma, kStops[next].chroma, t);
        const Color light = linearFromOklab(0.15f + 0.82f * place, chroma * std::cos(hue), chroma * std::sin(hue));
        for (int y = 0; y < map.height; ++y)
            for (std::size_t band = 0; band < 3; ++band)
                map.at(x, y)[band] = encodeSrgb(light[band]);
    }
    return map;
}

Raster disintegrateMask()
{
    Raster mask(1000, 750, 1);
    for (int y = 0; y < mask.height; ++y)
        for (int x = 0; x < mask.width; ++x) {
            const float u = static_cast<float>(x) / 190, v = static_cast<float>(y) / 190;
            const float pushX = fractalNoise(u, v, 31, 3), pushY = fractalNoise(u, v, 41, 3);
            *mask.at(x, y) = fractalNoise(u + 0.3f * pushX, v + 0.3f * pushY, 51, 5);
        }
    equalise(mask.samples);
    for (float& sample : mask.samples)
        sample = encodeSrgb(sample);
    return mask;
}

Raster controlPointMarker()
{
    constexpr int kSize = 16, kPerSide = 8;
    constexpr Color kViolet = {124 / 255.0f, 92 / 255.0f, 232 / 255.0f}; // reads on light and on dark rows
    Raster marker(kSize, kSize, 4);
    for (int y = 0; y < kSize; ++y)
        for (int x = 0; x < kSize; ++x) {
            float covered = 0;
            for (int sample = 0; sample < kPerSide * kPerSide; ++sample)
                covered +=
                    markerCoverage(static_cast<float>(x) + (static_cast<float>(sample % kPerSide) + 0.5f) / kPerSide,
                        static_cast<float>(y) + (static_cast<float>(sample / kPerSide) + 0.5f) / kPerSide);
            std::copy(kViolet.begin(), kViolet.end(), marker.at(x, y));
            marker.at(x, y)[3] = covered / (kPerSide * kPerSide);
        }
    return marker;
}
