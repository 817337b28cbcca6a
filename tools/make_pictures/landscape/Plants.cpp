#include "tools/make_pictures/landscape/Plants.h"

namespace {

constexpr float kPi = 3.14159265f;

Vec needleColor(const Conifer& tree, Random& random)
{
    const float tint = random.next();
    if (tree.golden)
        return mixed(Vec{0.36f, 0.19f, 0.025f}, Vec{0.42f, 0.27f, 0.05f}, tint);
    return mixed(Vec{0.030f, 0.058f, 0.026f}, Vec{0.052f, 0.075f, 0.026f}, tint);
}

/// A bough: where it leaves the trunk, where it ends, and how long it is when seen from above.
struct Bough {
    Nib root, tip;
    float length; // pixels
    float out; // -1 to the left, 0 towards or away from the viewer, 1 to the right
};

/// Draws a bough, with twigs hanging off it when there are pixels for them.
void drawBough(Canvas& canvas, const Strip& strip, const Bough& bough, const Vec& color, float away, Random& random)
{
    const auto& [root, tip, length, out] = bough;
    const Nib bend = {mixed(root.x, tip.x, 0.55f), mixed(root.y, tip.y, 0.35f), root.radius * 0.8f};
    drawStroke(canvas, strip, root, bend, color, away);
    drawStroke(canvas, strip, bend, tip, color, away);
    const int twigs = length > 9 ? std::min(110, static_cast<int>(length / 2.0f)) : 0;
    for (int twig = 0; twig < twigs; ++twig) {
        const float t = random.between(0.10f, 1.0f);
        const float x = mixed(root.x, tip.x, t), y = mixed(root.y, tip.y, t * t * 0.5f + t * 0.5f);
        const float size = length * random.between(0.08f, 0.22f) * (1.15f - 0.6f * t);
        const float aside = 0.75f * out + random.between(-0.75f, 0.75f);
        const Nib end = {x + size * aside, y + size * random.between(-0.10f, 0.80f), 0.35f};
        const float shade = random.between(0.55f, 1.2f) + 0.35f * t;
        drawStroke(canvas, strip, {x, y, std::clamp(size * 0.08f, 0.55f, 1.4f)}, end, color * shade, away);
    }
}

/// The place a share `t` of the way up a blade, and its thickness there.
Nib onBlade(const Blade& blade, float t)
{
    const float fall = std::min(std::fabs(blade.lean) * 0.35f, blade.height * 0.4f);
    return {blade.x + blade.lean * t * t, blade.y - blade.height * t + fall * t * t * t,
        blade.radius * (1 - 0.88f * t * t)};
}

} // namespace

void drawConifer(Canvas& canvas, const Strip& strip, const Conifer& tree, const PlantLight& light)
{
    const float reach = tree.height * 0.30f;
    if (tree.x + reach < static_cast<float>(strip.first) || tree.x - reach > static_cast<float>(strip.last))
        return;
    Random random(tree.seed);
    const Vec needles = needleColor(tree, random);
    const float width = tree.height * random.between(0.13f, 0.20f) * (tree.golden ? 1.12f : 1.0f);
    const float bare = random.between(0.02f, 0.09f), slender = random.between(0.8f, 1.15f);
    const int rows =
        std::clamp(static_cast<int>(tree.height / (tree.height > 300 ? 8 : 2.4f)), 5, tree.height > 300 ? 150 : 54);
    const int boughs = std::clamp(static_cast<int>(tree.height / 14), 3, 9);
    const Vec bark = (light.sun * 0.35f + light.sky) * Vec{0.07f, 0.05f, 0.04f};
    drawStroke(canvas, strip, {tree.x, tree.y, std::max(0.5f, tree.height * 0.010f)},
        {tree.x, tree.y - tree.height * 0.97f, 0.4f}, mixed(bark, light.haze, light.hazy), tree.away);
    for (int row = 0; row < rows; ++row) {
        const float up = (static_cast<float>(row) + random.next()) / static_cast<float>(rows); // 0 lowest, 1 top
        const float y = tree.y - tree.height * (bare + (1 - bare) * up);
        const float length = width * (std::pow(1 - up, slender) * 0.95f + 0.03f) * random.between(0.72f, 1.12f);
        for (int bough = 0; bough < boughs; ++bough) {
            const float around = (bough < boughs / 2 ? -1.0f : 1.0f) * random.between(0, kPi); // the far side first
            const float out = std::cos(around), near = std::sin(around); // towards the viewer when positive
            const float reachOut = length * random.between(0.7f, 1.1f);
            const float droop = reachOut * random.between(0.18f, 0.62f) * (1 - 0.8f * up) - reachOut * 0.30f * up;
            // Lit from the left and above; the inside and the far side are dim.
            const float facing = std::clamp(0.42f - 0.62f * out + 0.22f * near, 0.0f, 1.0f);
            const float deep = (0.45f + 0.55f * up) * (near < -0.2f ? 0.55f : 1.0f);
            const float speckle = random.between(0.6f, 1.45f);
            const Vec lit =
                needles * (light.sun * (facing * 1.15f * deep) + light.sky * (0.75f * deep + 0.15f)) * speckle;
            const Nib root = {tree.x, y, std::clamp(length * 0.10f, 0.55f, 2.2f)};
            const Nib tip = {tree.x + reachOut * out, y + droop + reachOut * 0.16f * near, 0.4f};
            drawBough(canvas, strip, {root, tip, reachOut, out}, mixed(lit, light.haze, light.hazy), tree.away, random);
        }
    }
}

void drawBlade(Canvas& canvas, const Strip& strip, const Blade& blade, const Vec& foot, const Vec& tip)
{
    constexpr int kPieces = 5;
    Nib from = onBlade(blade, 0);
    for (int piece = 1; piece <= kPieces; ++piece) {
        const float t = static_cast<float>(piece) / kPieces;
        const Nib to = onBlade(blade, t);
        drawStroke(canvas, strip, from, to, mixed(foot, tip, t * t * 0.6f + t * 0.4f), blade.away);
        from = to;
    }
}

namespace {

/// Fingered leaves around the foot of a lupine.
void drawLeaves(Canvas& canvas, const Strip& strip, const Blade& stem, float size, Random& random)
{
    for (int leaf = 0; leaf < 7; ++leaf) {
        const Nib joint = onBlade(stem, random.between(0.12f, 0.52f));
        const float side = random.between(-1, 1), reach = size * random.between(0.03f, 0.075f);
        const Nib hub = {joint.x + side * reach, joint.y - reach * random.between(0.1f, 0.6f), 0.5f};
        const Vec green =
            mixed(Vec{0.06f, 0.13f, 0.04f}, Vec{0.22f, 0.30f, 0.07f}, random.between(0.1f, 1) * (0.7f - 0.3f * side));
        drawStroke(canvas, strip, {joint.x, joint.y, std::max(0.45f, size * 0.0012f)}, hub, green * 0.6f, stem.away);
        for (int finger = 0; finger < 7; ++finger) {
            const float angle = kPi * (0.08f + 0.84f * static_cast<float>(finger) / 6);
            const float length = size * random.between(0.022f, 0.034f);
            const Nib end = {hub.x + length * std::cos(angle), hub.y - 0.55f * length * std::sin(angle), 0.4f};
            drawStroke(canvas, strip, {hub.x, hub.y, std::max(0.5f, size * 0.0030f)}, end,
                green * random.between(0.75f, 1.25f), stem.away);
        }
    }
}

void drawLupine(Canvas& canvas, const Strip& strip, const Blade& stem, float size, Random& random)
{
    drawLeaves(canvas, strip, stem, size, random);
    const float hue = random.next();
    const Vec deep =
        hue < 0.78f ? mixed(Vec{0.16f, 0.07f, 0.62f}, Vec{0.36f, 0.10f, 0.62f}, hue / 0.78f) : Vec{0.66f, 0.13f, 0.38f};
    const float share = random.between(0.40f, 0.60f); // of the stem that blooms
    const int rings = std::clamp(static_cast<int>(stem.height * share / (0.0125f * size)), 5, 26);
    for (int ring = 0; ring < rings; ++ring) {
        const float up = (static_cast<float>(ring) + 0.5f) / static_cast<float>(rings);
        const Nib middle = onBlade(stem, 1 - (1 - up) * share);
        const float radius = size * 0.0215f * (1.0f - 0.80f * up * up) * random.between(0.85f, 1.1f);
        const float bud = smoothStep(0.72f, 1.0f, up); // not open yet
        for (int floret = 0; floret < 4; ++floret) {
            const float across = (static_cast<float>(floret) - 1.5f) / 1.5f + random.between(-0.22f, 0.22f);
            if (random.next() < 0.10f)
                continue;
            const float lit = mixed(1.55f, 0.42f, across * 0.5f + 0.5f) * random.between(0.7f, 1.3f);
            const float x = middle.x + across * radius, y = middle.y + radius * random.between(-0.25f, 0.25f);
            const float petal = size * 0.0085f * (1 - 0.62f * bud);
            const Vec color = mixed(deep, Vec{0.20f, 0.24f, 0.16f}, 0.65f * bud) * lit;
            drawEllipse(canvas, strip, {x, y, petal, petal * 0.72f, 0.7f * across}, color, stem.away);
            drawEllipse(canvas, strip,
                {x + 0.25f * petal * across, y - 0.32f * petal, petal * 0.50f, petal * 0.30f, 0.7f * across},
                mixed(color, Vec{0.95f, 0.75f, 1.0f} * lit, 0.45f * (1 - bud)), stem.away);
        }
    }
}

void drawDaisy(Canvas& canvas, const Strip& strip, const Blade& stem, float size, Random& random)
{
    const Nib head = onBlade(stem, 1);
    const float x = head.x, y = head.y;
    const float radius = size * random.between(0.021f, 0.030f), tilt = random.between(0.45f, 0.85f);
    const int petals = 13;
    for (int petal = 0; petal < petals; ++petal) {
        const float angle = 2 * kPi * (static_cast<float>(petal) + random.between(-0.2f, 0.2f)) / petals;
        const float px = std::cos(angle), py = std::sin(angle) * tilt;
        const float lit = (0.86f - 0.20f * px) * random.between(0.85f, 1.1f);
        drawEllipse(canvas, strip,
            {x + px * radius * 0.62f, y + py * radius * 0.62f, radius * 0.42f, radius * 0.14f, std::atan2(py, px)},
            Vec{1.12f, 1.0f, 0.92f} * lit, stem.away);
    }
    drawEllipse(canvas, strip, {x, y - radius * 0.06f, radius * 0.27f, radius * 0.22f * (0.6f + 0.4f * tilt), 0},
        {1.05f, 0.60f, 0.05f}, stem.away);
    drawEllipse(canvas, strip, {x + radius * 0.07f, y + radius * 0.03f, radius * 0.16f, radius * 0.11f, 0},
        {0.70f, 0.33f, 0.02f}, stem.away);
}

void drawPoppy(Canvas& canvas, const Strip& strip, const Blade& stem, float size, Random& random)
{
    const Nib head = onBlade(stem, 1);
    const float x = head.x, y = head.y;
    const float radius = size * random.between(0.024f, 0.034f);
    const Vec red = mixed(Vec{1.00f, 0.13f, 0.03f}, Vec{1.15f, 0.30f, 0.04f}, random.next());
    const float turn = random.between(0, kPi);
    for (int petal = 0; petal < 5; ++petal) {
        const float angle = turn + 2 * kPi * static_cast<float>(petal) / 5;
        const float px = std::cos(angle), py = std::sin(angle) * 0.62f;
        const float lit = (0.95f - 0.38f * px - 0.12f * py) * random.between(0.85f, 1.12f);
        drawEllipse(canvas, strip,
            {x + px * radius * 0.48f, y + py * radius * 0.48f, radius * 0.56f, radius * 0.44f,
                std::atan2(py, px) + kPi / 2},
            red * lit, stem.away);
    }
    drawEllipse(canvas, strip, {x, y, radius * 0.24f, radius * 0.18f, 0}, {0.10f, 0.05f, 0.05f}, stem.away);
}

void drawButtercup(Canvas& canvas, const Strip& strip, const Blade& stem, float size, Random& random)
{
    const Nib head = onBlade(stem, 1);
    const float x = head.x, y = head.y;
    const float radius = size * random.between(0.010f, 0.016f);
    for (int petal = 0; petal < 5; ++petal) {
        const float angle = 2 * kPi * (static_cast<float>(petal) + 0.3f) / 5;
        const float px = std::cos(angle), py = std::sin(angle) * 0.7f;
        drawEllipse(canvas, strip,
            {x + px * radius * 0.5f, y + py * radius * 0.5f, radius * 0.6f, radius * 0.5f, angle},
            Vec{1.15f, 0.78f, 0.04f} * (0.95f - 0.3f * px), stem.away);
    }
}

void drawSeedHead(Canvas& canvas, const Strip& strip, const Blade& stem, float size, Random& random)
{
    const Vec straw = mixed(Vec{0.85f, 0.55f, 0.26f}, Vec{0.70f, 0.40f, 0.30f}, random.next());
    for (int seed = 0; seed < 16; ++seed) {
        const float t = 0.74f + 0.26f * static_cast<float>(seed) / 16;
        const auto [x, y, thickness] = onBlade(stem, t);
        const float out = size * 0.016f * random.between(-1, 1) * (1.15f - t) * 4;
        drawStroke(canvas, strip, {x, y, std::max(0.4f, thickness)},
            {x + out, y - size * random.between(0.006f, 0.022f), 0.4f}, straw * random.between(0.7f, 1.3f), stem.away);
    }
}

} // namespace

void drawFlower(Canvas& canvas, const Strip& strip, Flower flower, const Blade& stem, float size, Random& random)
{
    const Vec stalk = flower == Flower::SeedGrass ? Vec{0.40f, 0.28f, 0.10f} : Vec{0.10f, 0.15f, 0.035f};
    drawBlade(canvas, strip, stem, stalk * 0.5f, stalk);
    switch (flower) {
    case Flower::Lupine:
        return drawLupine(canvas, strip, stem, size, random);
    case Flower::Daisy:
        return drawDaisy(canvas, strip, stem, size, random);
    case Flower::Poppy:
        return drawPoppy(canvas, strip, stem, size, random);
    case Flower::Buttercup:
        return drawButtercup(canvas, strip, stem, size, random);
    case Flower::SeedGrass:
        return drawSeedHead(canvas, strip, stem, size, random);
    }
}
