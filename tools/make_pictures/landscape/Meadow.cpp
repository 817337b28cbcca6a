#include "tools/make_pictures/landscape/Meadow.h"

#include "tools/make_pictures/landscape/Parallel.h"
#include "tools/make_pictures/landscape/Plants.h"

namespace {

constexpr int kStripWidth = 128; // pixels
constexpr float kNear = 4.4f, kEnd = 44; // metres

/// The bank falls away to the shore, and rises a little to the right.
float meadowHeight(float x, float z)
{
    return 10.35f - 0.10f * z - 0.0026f * z * z + 0.030f * x + 0.55f * quickFractal(x / 9, z / 9, 801, 3);
}

/// Warm patches where the low sun reaches between the trees behind us.
float sunPatch(float x, float z) { return smoothStep(-0.20f, 0.22f, quickFractal(x / 7 + 3, z / 11, 811, 3)); }

void drawSoil(Canvas& canvas, const View& view, int x)
{
    const float right = view.right(static_cast<float>(x) + 0.5f);
    int top = canvas.height;
    for (float z = kNear * 0.8f; z < kEnd; z += z * 0.003f) {
        const float height = meadowHeight(right * z, z);
        const int y = std::max(0, static_cast<int>(view.pixelY(height, z)));
        for (int row = y; row < top; ++row) {
            const float grain = 0.5f + cellRandom(x / 2, row / 2, 821);
            canvas.color[canvas.index(x, row)] = Vec{0.030f, 0.034f, 0.012f} * grain;
            canvas.distance[canvas.index(x, row)] = z;
            canvas.kind[canvas.index(x, row)] = Kind::Ground;
        }
        top = std::min(top, y);
    }
}

struct Tuft {
    float x, z, y; // metres
    float size; // pixels of a metre
    float sun; // 0...1
};

void drawGrass(Canvas& canvas, const Strip& strip, const View& view, const Tuft& tuft, Random& random)
{
    const float dry = std::clamp(0.42f + 0.9f * quickFractal(tuft.x / 2.3f, tuft.z / 3.1f, 831, 3), 0.0f, 1.0f);
    const float clump = smoothStep(0.05f, 0.35f, quickFractal(tuft.x / 0.9f, tuft.z / 1.3f, 871, 2));
    const float tall = random.between(0.14f, 0.40f) * (0.75f + 0.5f * dry) * (1 + 0.7f * clump);
    const Vec green = mixed(Vec{0.13f, 0.21f, 0.035f}, Vec{0.46f, 0.34f, 0.085f}, dry * random.between(0.3f, 1.2f));
    const Vec light = mixed(Vec{0.34f, 0.42f, 0.62f}, Vec{2.25f, 1.55f, 0.85f}, tuft.sun * random.between(0.5f, 1.1f));
    const float lean = tall * random.between(-0.38f, 0.55f);
    const Blade blade = {view.pixelX(tuft.x, tuft.z), view.pixelY(tuft.y, tuft.z), tall * tuft.size, lean * tuft.size,
        std::max(0.45f, random.between(0.0016f, 0.0034f) * tuft.size), tuft.z - 2};
    drawBlade(canvas, strip, blade, green * light * 0.16f, green * light);
}

void drawBloom(Canvas& canvas, const Strip& strip, const View& view, const Tuft& tuft, Random& random)
{
    const float lupines = quickFractal(tuft.x / 3.2f, tuft.z / 5, 841, 2) + 0.05f;
    const float poppies = quickFractal(tuft.x / 2.6f, tuft.z / 4, 851, 2);
    const float daisies = quickFractal(tuft.x / 2.2f, tuft.z / 4, 861, 2);
    const float chance = random.next();
    Flower flower = Flower::SeedGrass;
    const float straws = smoothStep(0.05f, 0.3f, quickFractal(tuft.x / 1.9f, tuft.z / 3, 881, 2));
    float tall = random.between(0.40f, 0.66f), common = 0.06f + 0.7f * straws;
    if (lupines > 0.06f && chance < 0.8f) {
        flower = Flower::Lupine;
        tall = random.between(0.34f, 0.62f);
        common = 0.26f;
    } else if (poppies > 0.10f && chance < 0.75f) {
        flower = Flower::Poppy;
        tall = random.between(0.28f, 0.48f);
        common = 0.30f;
    } else if (daisies > 0.04f && chance < 0.8f) {
        flower = Flower::Daisy;
        tall = random.between(0.24f, 0.44f);
        common = 0.42f;
    } else if (chance < 0.6f) {
        flower = Flower::Buttercup;
        tall = random.between(0.22f, 0.40f);
        common = 0.16f;
    }
    if (random.next() > common)
        return;
    const float lean = tall * random.between(-0.16f, 0.20f);
    const Blade stem = {view.pixelX(tuft.x, tuft.z), view.pixelY(tuft.y, tuft.z), tall * tuft.size, lean * tuft.size,
        std::max(0.5f, 0.0026f * tuft.size), tuft.z - 2};
    drawFlower(canvas, strip, flower, stem, tuft.size, random);
}

/// Trees on the bank that frame the view.
void drawFrame(Canvas& canvas, const Strip& strip, const View& view)
{
    struct Stand {
        float x, z, height; // metres
        bool golden;
    };
    constexpr Stand kStands[] = {{20.9f, 39, 14.5f, false}, {23.2f, 41, 18.5f, false}, {18.9f, 37, 7.0f, false},
        {17.9f, 38, 4.6f, true}, {-20.6f, 39, 7.2f, false}, {-22.3f, 40, 10.5f, false}, {-19.2f, 38, 3.4f, true}};
    for (const Stand& tree : kStands) {
        const PlantLight light = {kSunlight * 0.8f, kSkylight * 0.9f, {}, 0};
        const float foot = meadowHeight(tree.x, tree.z) - 0.1f;
        drawConifer(canvas, strip,
            {view.pixelX(tree.x, tree.z), view.pixelY(foot, tree.z), tree.height * view.focal / tree.z, tree.z - 3,
                static_cast<std::uint32_t>(tree.x * 10 + 900), tree.golden},
            light);
    }
}

} // namespace

void drawMeadow(Canvas& canvas, const View& view)
{
    inParallel(canvas.width, [&](int x) { drawSoil(canvas, view, x); });
    const int strips = (canvas.width + kStripWidth - 1) / kStripWidth;
    inParallel(strips, [&](int number) {
        const Strip strip = {number * kStripWidth, std::min(canvas.width, (number + 1) * kStripWidth)};
        drawFrame(canvas, strip, view);
        std::uint32_t row = 0;
        for (float z = kEnd; z > kNear; z *= 0.9875f, ++row) {
            const float size = view.focal / z, spacing = std::max(0.011f, 3.2f / view.focal * z * 0.9f);
            const float reach = size * 0.8f + 40;
            const int first = static_cast<int>(view.right(static_cast<float>(strip.first) - reach) * z / spacing);
            const int last = static_cast<int>(view.right(static_cast<float>(strip.last) + reach) * z / spacing);
            for (int i = first - 1; i <= last; ++i) {
                Random random(row * 65536u + static_cast<std::uint32_t>(i + 32768));
                Tuft tuft = {
                    (static_cast<float>(i) + random.next()) * spacing, z * random.between(0.99f, 1.01f), 0, size, 0};
                tuft.y = meadowHeight(tuft.x, tuft.z) - 0.02f;
                tuft.sun = sunPatch(tuft.x, tuft.z);
                drawGrass(canvas, strip, view, tuft, random);
                if (random.next() < 0.045f * std::min(1.0f, spacing / 0.02f))
                    drawBloom(canvas, strip, view, tuft, random);
            }
        }
    });
}
