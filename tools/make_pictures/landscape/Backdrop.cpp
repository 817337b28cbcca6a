#include "tools/make_pictures/landscape/Backdrop.h"

#include "tools/make_pictures/landscape/Parallel.h"
#include "tools/make_pictures/landscape/Plants.h"

namespace {

constexpr float kNearest = 75; // metres; nearer is meadow or water at its foot
constexpr int kStripWidth = 128; // pixels

/// Metres between trees, or rows of them; farther away they may be sparser.
float spacingAt(float z) { return std::clamp(0.0021f * z, 4.6f, 14.0f); }

} // namespace

Backdrop::Backdrop(const Terrain& terrain, const Sky& sky, const Vec& towardsSun)
    : m_terrain(terrain)
    , m_sky(sky)
    , m_towardsSun(towardsSun)
{
    std::vector<float> rows;
    for (float z = kNearest; z < 7500; z += spacingAt(z))
        rows.push_back(z);
    std::vector<std::vector<Tree>> planted(rows.size());
    inParallel(static_cast<int>(rows.size()), [&](int number) {
        const std::size_t row = static_cast<std::size_t>(number);
        plantRow(rows[row], spacingAt(rows[row]), static_cast<std::uint32_t>(number), planted[row]);
    });
    for (auto row = planted.rbegin(); row != planted.rend(); ++row)
        m_trees.insert(m_trees.end(), row->begin(), row->end());
}

void Backdrop::plantRow(float z, float spacing, std::uint32_t row, std::vector<Tree>& planted) const
{
    const int side = static_cast<int>(0.64f * z / spacing) + 3;
    for (int i = -side; i <= side; ++i) {
        const std::uint32_t seed = row * 8192u + static_cast<std::uint32_t>(i + 4096);
        Random random(seed);
        const float x = (static_cast<float>(i) + random.between(-0.5f, 0.5f)) * spacing;
        const float tz = z + random.between(-0.5f, 0.5f) * spacing;
        const float height = m_terrain.height(x, tz, 8);
        if (height < 1.2f || height > 1200)
            continue;
        const float density = m_terrain.forest(x, tz, height, m_terrain.normal(x, tz, 12));
        if (random.next() > density * 0.93f)
            continue;
        const float stand = 0.5f + quickFractal(x / 120, tz / 120, 611, 3); // 0...1, how old the trees are
        const float tall = random.between(6, 17) + 15 * std::clamp(stand, 0.0f, 1.0f) * random.next();
        const float larches = quickFractal(x / 240, tz / 240, 621, 3) + 0.00022f * height;
        planted.push_back({{x, height - 0.5f, tz}, tall * (1 - 0.35f * smoothStep(400, 950, height)), seed,
            random.next() < 0.012f + 0.66f * smoothStep(0.23f, 0.40f, larches)});
    }
}

void Backdrop::draw(Canvas& canvas, const View& view) const
{
    inParallel(canvas.width, [&](int x) {
        drawColumn(canvas, view, x);
        shadeColumn(canvas, view, x);
    });
    drawForest(canvas, view);
}

/// Walks away from the viewer and fills the column upwards wherever the ground rises above all before it.
void Backdrop::drawColumn(Canvas& canvas, const View& view, int x) const
{
    const float right = view.right(static_cast<float>(x) + 0.5f);
    float top = view.eye > 0 ? static_cast<float>(canvas.height) : view.horizon; // above the water only, when mirrored
    float before = top, z = kNearest, zBefore = z;
    const auto fill = [&](float to, Kind kind) {
        const int last = std::min(canvas.height, static_cast<int>(std::ceil(top - 0.5f)));
        for (int y = std::max(0, static_cast<int>(std::ceil(to - 0.5f))); y < last; ++y) {
            const float t = before > to ? (before - (static_cast<float>(y) + 0.5f)) / (before - to) : 1;
            canvas.distance[canvas.index(x, y)] = mixed(zBefore, z, std::clamp(t, 0.0f, 1.0f));
            canvas.kind[canvas.index(x, y)] = kind;
        }
        top = std::min(top, to);
    };
    while (z < Terrain::kFar && top > 0) {
        const float height = m_terrain.height(right * z, z, z / view.focal);
        const bool water = height <= 0;
        const float y = view.pixelY(water ? 0 : height, z);
        if (y < top && !(water && view.eye < 0))
            fill(y, water ? Kind::Water : Kind::Ground);
        before = y;
        zBefore = z;
        z += std::max(0.25f, z * 0.9f / view.focal);
    }
}

void Backdrop::shadeColumn(Canvas& canvas, const View& view, int x) const
{
    const float right = view.right(static_cast<float>(x) + 0.5f);
    for (int y = 0; y < canvas.height; ++y) {
        const std::size_t index = canvas.index(x, y);
        const float up = view.up(static_cast<float>(y) + 0.5f);
        if (canvas.kind[index] == Kind::Sky)
            canvas.color[index] = m_sky.light(right, std::max(up, 0.0f));
        if (canvas.kind[index] != Kind::Ground)
            continue;
        const float z = canvas.distance[index];
        const Vec place = {right * z, view.eye + up * z, z};
        canvas.color[index] = throughAir(groundLight(place, z / view.focal), place, view);
    }
}

Vec Backdrop::groundLight(const Vec& place, float footprint) const
{
    const Vec normal = m_terrain.normal(place.x, place.z, footprint);
    const Vec broad = m_terrain.normal(place.x, place.z, 24);
    const float sun = m_terrain.sunlight(place.x, place.z), open = m_terrain.openness(place.x, place.z);
    const float blotch = quickFractal(place.x / 210, place.z / 210 + place.y / 90, 701, 6);
    const float grain = quickFractal(place.x / 9, place.z / 9 + place.y / 7, 711, 4);

    const float layers = quickNoise(place.y / 21 + 2.2f * blotch, place.x / 900, 721);
    Vec albedo = mixed(Vec{0.135f, 0.120f, 0.115f}, Vec{0.27f, 0.225f, 0.195f}, 0.5f + 0.8f * blotch + 0.25f * layers);
    albedo = albedo * (1 + 0.5f * grain);
    const Vec grass = mixed(Vec{0.085f, 0.105f, 0.028f}, Vec{0.24f, 0.155f, 0.05f},
        std::clamp(0.45f + 1.1f * blotch + (place.y - 500) / 1400, 0.0f, 1.0f));
    const float green =
        smoothStep(0.62f, 0.80f, broad.y + 0.12f * blotch) * smoothStep(1500, 850, place.y + 500 * blotch);
    albedo = mixed(albedo, grass * (1 + 0.5f * grain), green);
    const float wood = m_terrain.forest(place.x, place.z, place.y, broad);
    albedo = mixed(albedo, Vec{0.030f, 0.042f, 0.016f}, smoothStep(0.15f, 0.7f, wood));
    const float beach = smoothStep(3.2f, 1.2f, place.y + 2 * grain);
    albedo = mixed(albedo, Vec{0.17f, 0.15f, 0.125f} * (1 + 1.3f * grain), beach);
    const float snow = smoothStep(-0.06f, 0.10f,
        (place.y - 1320) / 1500 + 0.34f * blotch + 0.10f * grain + 1.7f * (0.60f * normal.y + 0.40f * broad.y - 0.64f));
    albedo = mixed(albedo, Vec{0.78f, 0.80f, 0.85f}, snow * smoothStep(950, 1250, place.y + 300 * blotch));

    const float facing = std::max(0.0f, dot(normal, m_towardsSun));
    const float wrap = mixed(facing, std::max(0.0f, 0.25f + 0.75f * dot(normal, m_towardsSun)), 0.25f * snow);
    const Vec bounce = Vec{0.22f, 0.13f, 0.09f} * (0.5f * sun * (1 - 0.5f * normal.y));
    return albedo * (kSunlight * (wrap * sun) + kSkylight * (open * (0.35f + 0.65f * normal.y)) + bounce);
}

float Backdrop::airBetween(const Vec& place, const View& view) const
{
    const float away = std::hypot(place.x, place.z);
    const float low = std::exp(-std::max(place.y, 0.0f) / 340); // mist lies in the valley
    const float thick = away / 38000 + std::max(0.0f, away - 1200) / 11000 * low * 0.40f;
    const float right = place.x / place.z, up = (place.y - view.eye) / place.z;
    return 1 - std::exp(-thick * (0.85f + 0.75f * m_sky.glare(right, std::fabs(up))));
}

Vec Backdrop::throughAir(const Vec& light, const Vec& place, const View& view) const
{
    const float right = place.x / place.z, up = std::fabs((place.y - view.eye) / place.z);
    return mixed(light, m_sky.haze(right, up), airBetween(place, view));
}

void Backdrop::drawForest(Canvas& canvas, const View& view) const
{
    const int strips = (canvas.width + kStripWidth - 1) / kStripWidth;
    inParallel(strips, [&](int number) {
        const Strip strip = {number * kStripWidth, std::min(canvas.width, (number + 1) * kStripWidth)};
        for (const Tree& tree : m_trees) {
            const float tall = tree.height * view.focal / tree.foot.z;
            const float x = view.pixelX(tree.foot.x, tree.foot.z), y = view.pixelY(tree.foot.y, tree.foot.z);
            if (x + 0.3f * tall < static_cast<float>(strip.first) || x - 0.3f * tall > static_cast<float>(strip.last))
                continue;
            const float away = tree.foot.z - 0.012f * tree.foot.z - 6; // its own slope must not swallow it
            const int column = std::clamp(static_cast<int>(x), 0, canvas.width - 1);
            if (!canvas.shows(column, static_cast<int>(y - 0.95f * tall), away)
                && !canvas.shows(column, static_cast<int>(y - 0.5f * tall), away))
                continue;
            const float sun = m_terrain.sunlight(tree.foot.x, tree.foot.z);
            const float open = m_terrain.openness(tree.foot.x, tree.foot.z);
            const PlantLight light = {kSunlight * sun, kSkylight * open, m_sky.haze(tree.foot.x / tree.foot.z, 0.02f),
                airBetween(tree.foot, view)};
            drawConifer(canvas, strip, {x, y, tall, away, tree.seed, tree.golden}, light);
        }
    });
}
