#include "tools/make_pictures/landscape/Landscape.h"

#include "tools/make_pictures/landscape/Backdrop.h"
#include "tools/make_pictures/landscape/Meadow.h"
#include "tools/make_pictures/landscape/Parallel.h"

#include <iostream>

namespace {

constexpr int kWidth = 2000, kHeight = 1500, kPerSide = 2; // samples per pixel side
constexpr float kEye = 12; // metres above the lake

/// The lake: what it mirrors, bent by ripples, over what shines up out of it.
void drawLake(Canvas& canvas, const Canvas& mirrored, const View& view)
{
    inParallel(canvas.height, [&](int y) {
        const float down = (static_cast<float>(y) + 0.5f - view.horizon) / view.focal;
        if (down <= 0)
            return;
        for (int x = 0; x < canvas.width; ++x) {
            const std::size_t index = canvas.index(x, y);
            if (canvas.kind[index] != Kind::Water)
                continue;
            const float z = kEye / down, wx = view.right(static_cast<float>(x) + 0.5f) * z;
            // Breezes roughen some reaches and leave others a mirror.
            const float breeze = smoothStep(-0.10f, 0.30f, quickFractal(wx / 150, z / 340, 901, 3));
            const float rough = mixed(0.0035f, 0.017f, breeze);
            const float detail = std::exp(-z / 900);
            const float tiltZ = rough
                * (quickFractal(wx / 2.6f, z / 1.5f, 911, 3) * detail + 0.8f * quickFractal(wx / 15, z / 6, 921, 3));
            const float tiltX = 0.35f * rough * quickFractal(wx / 2.2f, z / 1.9f, 931, 3) * detail;
            const float steep = std::max(0.004f, down - 1.2f * tiltZ); // of the ray that leaves the facet
            const float sx = static_cast<float>(x) + 0.5f + 2 * tiltX * view.focal;
            const float sy = view.horizon - view.focal * (down + std::fabs(2 * tiltZ) * 1.1f + 1.0f * tiltZ);
            const int mx = std::clamp(static_cast<int>(sx), 0, mirrored.width - 1);
            const int my = std::clamp(static_cast<int>(sy), 0, mirrored.height - 1);
            const float fresnel = 0.02f + 0.98f * std::pow(1 - steep / std::sqrt(1 + steep * steep), 5.0f);
            const float shallow = std::exp(-std::max(0.0f, z - 40) / 90);
            const Vec body = mixed(Vec{0.010f, 0.070f, 0.105f}, Vec{0.030f, 0.150f, 0.150f}, shallow);
            canvas.color[index] = mixed(body, mirrored.color[mirrored.index(mx, my)], 0.28f + 0.72f * fresnel);
        }
    });
}

/// The mean of each block of samples.
std::vector<Vec> gathered(const Canvas& canvas, int width, int height)
{
    std::vector<Vec> pixels(static_cast<std::size_t>(width) * height);
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x) {
            Vec sum;
            for (int sample = 0; sample < kPerSide * kPerSide; ++sample) {
                const Vec& light =
                    canvas.color[canvas.index(x * kPerSide + sample % kPerSide, y * kPerSide + sample / kPerSide)];
                const float bound = std::min(1.0f, 12 / (luma(light) + 1e-3f));
                sum += light * bound;
            }
            pixels[static_cast<std::size_t>(y) * width + x] = sum * (1.0f / (kPerSide * kPerSide));
        }
    return pixels;
}

/// Blurs rows, or with stride = width columns, by a decaying trail to both sides.
void smear(std::vector<Vec>& pixels, int width, int height, bool columns, float keep)
{
    const int lines = columns ? width : height, length = columns ? height : width;
    const std::size_t stride = columns ? static_cast<std::size_t>(width) : 1;
    inParallel(lines, [&](int line) {
        Vec* const first =
            pixels.data() + (columns ? static_cast<std::size_t>(line) : static_cast<std::size_t>(line) * width);
        for (int i = 1; i < length; ++i)
            first[i * stride] = mixed(first[i * stride], first[(i - 1) * stride], keep);
        for (int i = length - 2; i >= 0; --i)
            first[i * stride] = mixed(first[i * stride], first[(i + 1) * stride], keep);
    });
}

/// Light that lens and eye spread around bright places.
std::vector<Vec> glow(std::vector<Vec> pixels, int width, int height, float radius)
{
    for (Vec& light : pixels)
        light = light * smoothStep(0.7f, 2.6f, luma(light));
    for (int round = 0; round < 3; ++round)
        for (const bool columns : {false, true})
            smear(pixels, width, height, columns, 1 - 1 / radius);
    return pixels;
}

/// Film's response: a soft toe and a long shoulder (the curve of K. Narkowicz, 2015).
float film(float x) { return std::clamp(x * (2.51f * x + 0.03f) / (x * (2.43f * x + 0.59f) + 0.14f), 0.0f, 1.0f); }

Raster developed(const std::vector<Vec>& pixels, const std::vector<Vec>& glow, int width, int height)
{
    constexpr float kExposure = 0.74f;
    Raster picture(width, height, 3);
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x) {
            const std::size_t index = static_cast<std::size_t>(y) * width + x;
            const float dx = (static_cast<float>(x) + 0.5f) / static_cast<float>(width) - 0.5f;
            const float dy = (static_cast<float>(y) + 0.5f) / static_cast<float>(height) - 0.5f;
            const float vignette = 1 - 0.55f * std::pow(dx * dx + dy * dy, 1.25f);
            const Vec light = (pixels[index] + glow[index] * 0.20f) * (kExposure * vignette);
            const float grey = luma(light);
            const Vec rich = mixed(Vec{grey, grey, grey}, light, 1.17f);
            float* const out = picture.at(x, y);
            out[0] = encodeSrgb(film(std::max(rich.x, 0.0f)));
            out[1] = encodeSrgb(film(std::max(rich.y, 0.0f)));
            out[2] = encodeSrgb(film(std::max(rich.z, 0.0f)));
        }
    return picture;
}

} // namespace

Raster landscape(float scale)
{
    const int width = static_cast<int>(kWidth * scale), height = static_cast<int>(kHeight * scale);
    const float pixels = scale * kPerSide; // samples of a full-size pixel
    const View view = {1732 * pixels, 1000 * pixels, 790 * pixels, kEye};
    View mirror = view;
    mirror.eye = -kEye;

    const Vec towardsSun = normalised({-0.90f, 0.30f, 0.02f});
    const Terrain terrain(towardsSun);
    const Sky sky(-0.182f, 0.150f);
    const Backdrop backdrop(terrain, sky, towardsSun);

    Canvas mirrored(width * kPerSide, static_cast<int>(view.horizon) + 2);
    backdrop.draw(mirrored, mirror);
    Canvas canvas(width * kPerSide, height * kPerSide);
    backdrop.draw(canvas, view);
    drawLake(canvas, mirrored, view);
    drawMeadow(canvas, view);

    const std::vector<Vec> light = gathered(canvas, width, height);
    return developed(light, glow(light, width, height, 26 * scale), width, height);
}
