#include "tools/make_pictures/landscape/Sky.h"

#include "tools/make_pictures/landscape/Parallel.h"
#include "tools/make_pictures/Noise.h"

namespace {

constexpr float kCloudBase = 2900, kCloudTop = 4700; // metres
constexpr Vec kSunOnCloud = {1.95f, 0.80f, 0.38f};
constexpr Vec kCloudShade = {0.20f, 0.235f, 0.39f};

/// Thickness of cloud at a place, 0 where the air is clear.
float cloudDensity(const Vec& p)
{
    float sum = 0, strength = 0.5f, scale = 1 / 2100.0f;
    for (std::uint32_t octave = 0; octave < 7; ++octave) {
        sum += strength * quickNoise3(p.x * scale + 4.1f, p.y * scale * 1.5f, p.z * scale * 0.85f, 500 + octave);
        strength *= 0.52f;
        scale *= 2.13f;
    }
    const float level = (p.y - kCloudBase) / (kCloudTop - kCloudBase);
    const float shape = smoothStep(0, 0.12f, level) * (1 - 0.95f * level);
    const float weather = 0.30f * quickFractal(p.x / 15000 + 0.6f, p.z / 15000 + 0.2f, 520, 2);
    return std::clamp((sum + weather - 0.12f - 0.30f * level) * 7, 0.0f, 1.0f) * shape;
}

} // namespace

Sky::Sky(float sunRight, float sunUp)
    : m_towardsSun(normalised({sunRight, sunUp, 1}))
    , m_table(static_cast<std::size_t>(kWide) * kHigh)
{
    inParallel(kHigh, [this](int row) {
        for (int column = 0; column < kWide; ++column) {
            const float right = (static_cast<float>(column) / (kWide - 1) * 2 - 1) * kReach;
            const float up = static_cast<float>(row) / (kHigh - 1) * kTop;
            const Vec ray = {right, std::max(up, 0.012f), 1};
            Vec light = air(right, up);
            const float halo = glare(right, up);
            const Vec wisps = mixed(Vec{0.95f, 0.66f, 0.56f}, Vec{1.6f, 0.72f, 0.32f}, halo);
            light = mixed(light, wisps, 0.55f * cirrus(ray));
            const Cloud cloud = cumulus(ray);
            light = light * cloud.clear + cloud.light;
            m_table[static_cast<std::size_t>(row) * kWide + column] = light;
        }
    });
}

float Sky::glare(float right, float up) const
{
    const float cosine = dot(normalised({right, up, 1}), m_towardsSun);
    return std::exp(-(1 - cosine) * 9.5f);
}

Vec Sky::air(float right, float up) const
{
    const Vec direction = normalised({right, up, 1});
    const float cosine = dot(direction, m_towardsSun), rise = std::max(direction.y, 0.0f);
    const float wide = glare(right, up);
    const Vec zenith = {0.048f, 0.185f, 0.50f};
    const Vec low = mixed(Vec{0.50f, 0.46f, 0.62f}, Vec{1.30f, 0.54f, 0.22f}, wide);
    Vec light = mixed(zenith, low, std::exp(-rise * 5.2f));
    light += Vec{1.0f, 0.52f, 0.20f} * (0.9f * std::exp(-(1 - cosine) * 55));
    light += Vec{1.0f, 0.80f, 0.50f} * (3.2f * std::exp(-(1 - cosine) * 1100));
    light += Vec{1.0f, 0.88f, 0.66f} * (40 * smoothStep(0.999970f, 0.999985f, cosine));
    return light;
}

Vec Sky::haze(float right, float up) const
{
    const float wide = glare(right, up);
    // Blue air away from the sun, rose in between, gold around it.
    const Vec rosy = mixed(Vec{0.25f, 0.32f, 0.60f}, Vec{0.74f, 0.46f, 0.53f}, smoothStep(0.05f, 0.6f, wide));
    return mixed(rosy, Vec{1.75f, 0.76f, 0.36f}, smoothStep(0.40f, 1.0f, wide));
}

Sky::Cloud Sky::cumulus(const Vec& ray) const
{
    constexpr int kSteps = 96;
    const float from = kCloudBase / ray.y, to = std::min(kCloudTop / ray.y, from + 16000);
    const Vec sun = normalised({-0.80f, 0.13f, 0.35f});
    const float halo = glare(ray.x, ray.y);
    const float step = (to - from) / kSteps;
    Cloud cloud = {{}, 1};
    if (from > 75000)
        return cloud;
    const float jitter = cellRandom(static_cast<int>(ray.x * 9e5f), static_cast<int>(ray.y * 9e5f), 530);
    for (int i = 0; i < kSteps && cloud.clear > 0.02f; ++i) {
        const Vec here = ray * (from + step * (static_cast<float>(i) + jitter));
        const float density = cloudDensity(here);
        if (density <= 0)
            continue;
        float shade = 0;
        for (const float away : {90.0f, 240.0f, 520.0f, 1000.0f})
            shade += cloudDensity(here + sun * away) * away * 0.9f;
        const float direct = std::exp(-shade * 0.0026f) + 0.30f * std::exp(-shade * 0.0006f);
        const float lift = smoothStep(kCloudBase, kCloudTop, here.y);
        const Vec light = kSunOnCloud * (direct * (0.6f + 0.9f * halo)) + kCloudShade * (0.75f + 0.6f * lift)
            + Vec{0.30f, 0.13f, 0.06f} * halo;
        const float opacity = 1 - std::exp(-density * std::min(step, 400.0f) * 0.0075f);
        const Vec seen = mixed(light, air(ray.x, ray.y), 1 - std::exp(-(from + step * static_cast<float>(i)) / 46000));
        cloud.light += seen * (cloud.clear * opacity);
        cloud.clear *= 1 - opacity;
    }
    const float far = smoothStep(75000, 42000, from);
    cloud.light = cloud.light * far;
    cloud.clear = mixed(1.0f, cloud.clear, far);
    return cloud;
}

float Sky::cirrus(const Vec& ray) const
{
    const float away = 9000 / ray.y;
    const float x = ray.x * away / 6500, z = away / 21000;
    const float bend = quickFractal(x * 0.5f, z * 0.8f, 540, 3);
    const float wisp = quickFractal(x + 1.3f * bend, z * 2.2f + 0.8f * bend, 550, 7);
    return smoothStep(-0.02f, 0.52f, wisp) * smoothStep(0.02f, 0.12f, ray.y);
}

Vec Sky::light(float right, float up) const
{
    const float gx = std::clamp((right / kReach + 1) / 2 * (kWide - 1), 0.0f, kWide - 1.001f);
    const float gy = std::clamp(up / kTop * (kHigh - 1), 0.0f, kHigh - 1.001f);
    const int cx = static_cast<int>(gx), cy = static_cast<int>(gy);
    const Vec* corner = m_table.data() + static_cast<std::size_t>(cy) * kWide + cx;
    const float u = gx - static_cast<float>(cx), v = gy - static_cast<float>(cy);
    return mixed(mixed(corner[0], corner[1], u), mixed(corner[kWide], corner[kWide + 1], u), v);
}
