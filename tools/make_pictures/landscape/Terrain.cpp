#include "tools/make_pictures/landscape/Terrain.h"

#include "tools/make_pictures/landscape/Parallel.h"
#include "tools/make_pictures/Noise.h"

#include <array>
#include <random>

namespace {

struct Peak {
    float x, z, height, reach; // metres
};
constexpr std::array<Peak, 12> kPeaks = {{
    {2050, 9000, 2750, 4300}, // the one everybody looks at
    {3500, 8700, 2150, 3000},
    {850, 9900, 1850, 2500},
    {5600, 7600, 2100, 3400},
    {-3900, 9300, 2350, 4000},
    {-5600, 8200, 2000, 3300},
    {-1700, 15500, 2150, 3600},
    {-4300, 16800, 2700, 4300},
    {600, 16500, 2500, 4000},
    {-2750, 3500, 900, 2150},
    {2850, 4000, 1200, 2500},
    {-4300, 5700, 1500, 2600},
}};

/// Distance in metres from the lake's shore, about; negative on the lake.
float shoreDistance(float x, float z)
{
    const float wobble = quickFractal(x / 420, z / 420, 91, 4);
    const float s = std::hypot((x + 40) / 640, (z - 650) / 900) - 1 + 0.42f * wobble;
    const auto spit = [=](float tipX, float tipZ, float reach, float slant) {
        const float along = (x - tipX) / reach, across = (z - tipZ - slant * (x - tipX)) / 70;
        return 1.15f * std::exp(-(along * along + across * across));
    };
    return 600 * (s + spit(440, 620, 240, 0.1f) + spit(-560, 960, 300, -0.12f) + spit(330, 1180, 260, 0.05f));
}

/// Sharp-crested noise, 0...1: each finer octave is strong only where the coarser ones rise (after Musgrave).
float ridges(float x, float z)
{
    float sum = 0, weight = 1, strength = 0.5f;
    for (std::uint32_t octave = 0; octave < 8; ++octave) {
        const float crest = 1 - std::fabs(quickNoise(x, z, 200 + octave));
        const float signal = crest * crest * weight;
        sum += strength * signal;
        weight = std::clamp(signal * 1.9f, 0.0f, 1.0f);
        strength *= 0.5f;
        const float turned = 1.70f * x - 1.13f * z;
        z = 1.13f * x + 1.70f * z;
        x = turned;
    }
    return sum;
}

float rawHeight(float x, float z)
{
    const float shore = shoreDistance(x, z);
    if (shore < 0)
        return std::max(-25.0f, 0.12f * shore);
    const float bentX = x + 260 * quickFractal(x / 1700, z / 1700, 71, 3);
    const float bentZ = z + 260 * quickFractal(x / 1700, z / 1700, 81, 3);
    float powers = 0; // a soft maximum: summits stay apart, saddles fill
    for (const Peak& peak : kPeaks) {
        const float away = std::hypot(bentX - peak.x, bentZ - peak.z) / peak.reach;
        if (away < 1)
            powers += std::pow(peak.height * std::pow(1 - away, 1.25f), 4.0f);
    }
    const float mass = std::pow(powers, 0.25f);
    const float rough = ridges(bentX / 2900, bentZ / 2900);
    const float hills =
        0.045f * shore + 26 * (0.5f + quickFractal(x / 520, z / 520, 61, 4)) * smoothStep(0, 350, shore);
    const float inland = smoothStep(0, 1300, shore);
    return std::min(hills, 130 + 0.01f * shore) + inland * (mass * (0.42f + 0.78f * rough) + 120 * rough * inland);
}

} // namespace

Terrain::Terrain(const Vec& towardsSun)
    : m_heights(static_cast<std::size_t>(kCells) * kCells)
    , m_sunlight(m_heights.size())
    , m_openness(m_heights.size())
{
    raise();
    erode(900'000);
    settle();
    light(towardsSun);
}

void Terrain::raise()
{
    inParallel(kCells, [this](int z) {
        for (int x = 0; x < kCells; ++x)
            cell(x, z) = rawHeight(kLeft + kCell * static_cast<float>(x), kFront + kCell * static_cast<float>(z));
    });
}

/// Drops run downhill, take ground where they are fast and leave it where they slow down (after H. T. Beyer, 2015).
void Terrain::erode(int drops)
{
    std::minstd_rand random(7);
    std::uniform_real_distribution<float> place(4, kCells - 6);
    for (int drop = 0; drop < drops; ++drop) {
        float x = place(random), z = place(random), dirX = 0, dirZ = 0, speed = 1, water = 1, load = 0;
        for (int step = 0; step < 56; ++step) {
            const int cx = static_cast<int>(x), cz = static_cast<int>(z);
            const float u = x - static_cast<float>(cx), v = z - static_cast<float>(cz);
            float &h00 = cell(cx, cz), &h10 = cell(cx + 1, cz), &h01 = cell(cx, cz + 1), &h11 = cell(cx + 1, cz + 1);
            const float here = mixed(mixed(h00, h10, u), mixed(h01, h11, u), v);
            if (here < 0)
                break; // into the lake
            const float slopeX = mixed(h10 - h00, h11 - h01, v), slopeZ = mixed(h01 - h00, h11 - h10, u);
            dirX = 0.25f * dirX - 0.75f * slopeX;
            dirZ = 0.25f * dirZ - 0.75f * slopeZ;
            const float length = std::hypot(dirX, dirZ);
            if (length < 1e-4f)
                break;
            dirX /= length;
            dirZ /= length;
            x += dirX;
            z += dirZ;
            if (x < 3 || z < 3 || x > kCells - 5 || z > kCells - 5)
                break;
            const int nx = static_cast<int>(x), nz = static_cast<int>(z);
            const float nu = x - static_cast<float>(nx), nv = z - static_cast<float>(nz);
            const float next =
                mixed(mixed(cell(nx, nz), cell(nx + 1, nz), nu), mixed(cell(nx, nz + 1), cell(nx + 1, nz + 1), nu), nv);
            const float fall = here - next; // metres
            const float capacity = std::max(fall / kCell, 0.02f) * speed * water * 5.5f;
            float change = fall < 0 ? std::min(load, -fall) : (load - capacity) * (load > capacity ? 0.12f : 0.22f);
            change = std::max(change, -std::max(fall, 0.0f) * 0.45f);
            load -= change;
            h00 += change * (1 - u) * (1 - v);
            h10 += change * u * (1 - v);
            h01 += change * (1 - u) * v;
            h11 += change * u * v;
            speed = std::sqrt(std::max(0.0f, speed * speed * 0.9f + fall * 0.35f));
            speed = std::min(speed, 9.0f);
            water *= 0.975f;
        }
    }
}

/// Single wild cells become part of their surroundings.
void Terrain::settle()
{
    std::vector<float> settled = m_heights;
    inParallel(kCells - 2, [&](int row) {
        for (int x = 1; x < kCells - 1; ++x) {
            const int z = row + 1;
            const float around = (cell(x - 1, z) + cell(x + 1, z) + cell(x, z - 1) + cell(x, z + 1)) / 4;
            const float stray = cell(x, z) - around;
            settled[static_cast<std::size_t>(z) * kCells + x] = around + std::clamp(stray, -5.0f, 5.0f) * 0.75f;
        }
    });
    m_heights = std::move(settled);
}

void Terrain::light(const Vec& towardsSun)
{
    const float climb = towardsSun.y / std::hypot(towardsSun.x, towardsSun.z);
    const float stepX = towardsSun.x / std::hypot(towardsSun.x, towardsSun.z);
    const float stepZ = towardsSun.z / std::hypot(towardsSun.x, towardsSun.z);
    inParallel(kCells, [&](int row) {
        for (int column = 0; column < kCells; ++column) {
            const float x = kLeft + kCell * static_cast<float>(column), z = kFront + kCell * static_cast<float>(row);
            const float ground = std::max(cell(column, row), 0.0f);
            float free = 1;
            for (float away = 14; away < 9000 && free > 0; away *= 1.09f) {
                const float clearance = ground + 3 + climb * away - smoothHeight(x + stepX * away, z + stepZ * away);
                free = std::min(free, 0.5f + clearance / (away * 0.045f + 6));
            }
            float sky = 0;
            for (int direction = 0; direction < 8; ++direction) {
                const float angle = 0.785398f * (static_cast<float>(direction) + 0.37f);
                float horizon = 0;
                for (float away = 12; away < 1500; away *= 1.7f)
                    horizon = std::max(horizon,
                        (smoothHeight(x + std::cos(angle) * away, z + std::sin(angle) * away) - ground) / away);
                sky += 1 - horizon / std::sqrt(1 + horizon * horizon);
            }
            const std::size_t index = static_cast<std::size_t>(row) * kCells + column;
            m_sunlight[index] = smoothStep(0, 1, free);
            m_openness[index] = sky / 8;
        }
    });
}

float Terrain::sampled(const std::vector<float>& grid, float x, float z) const
{
    const float gx = std::clamp((x - kLeft) / kCell, 0.0f, kCells - 1.001f);
    const float gz = std::clamp((z - kFront) / kCell, 0.0f, kCells - 1.001f);
    const int cx = std::min(static_cast<int>(gx), kCells - 2), cz = std::min(static_cast<int>(gz), kCells - 2);
    const float u = gx - static_cast<float>(cx), v = gz - static_cast<float>(cz);
    const float* corner = grid.data() + static_cast<std::size_t>(cz) * kCells + cx;
    return mixed(mixed(corner[0], corner[1], u), mixed(corner[kCells], corner[kCells + 1], u), v);
}

float Terrain::smoothHeight(float x, float z) const { return sampled(m_heights, x, z); }

float Terrain::height(float x, float z, float footprint) const
{
    const float gx = std::clamp((x - kLeft) / kCell, 1.0f, kCells - 3.0f);
    const float gz = std::clamp((z - kFront) / kCell, 1.0f, kCells - 3.0f);
    const int cx = static_cast<int>(gx), cz = static_cast<int>(gz);
    const float u = gx - static_cast<float>(cx), v = gz - static_cast<float>(cz);
    const auto spline = [](float a, float b, float c, float d, float t) { // Catmull and Rom's
        return b + 0.5f * t * (c - a + t * (2 * a - 5 * b + 4 * c - d + t * (3 * (b - c) + d - a)));
    };
    std::array<float, 4> rows;
    for (int row = 0; row < 4; ++row) {
        const float* from = m_heights.data() + static_cast<std::size_t>(cz + row - 1) * kCells + cx - 1;
        rows[static_cast<std::size_t>(row)] = spline(from[0], from[1], from[2], from[3], u);
    }
    float result = spline(rows[0], rows[1], rows[2], rows[3], v);
    if (result <= 0)
        return result;
    // Rock is rough below the size of a cell, more so high up.
    const float rough = smoothStep(150, 900, result);
    float amplitude = 9.0f * (0.08f + rough) * smoothStep(0, 30, result), wavelength = 26;
    for (std::uint32_t octave = 0; octave < 6 && wavelength > footprint * 1.5f; ++octave) {
        const float crest = 1 - std::fabs(quickNoise(x / wavelength, z / wavelength, 300 + octave));
        result += amplitude * (crest - 0.7f);
        amplitude *= 0.55f;
        wavelength *= 0.47f;
    }
    return result;
}

Vec Terrain::normal(float x, float z, float footprint) const
{
    const float step = std::max(0.7f * footprint, 0.3f);
    return normalised({height(x - step, z, footprint) - height(x + step, z, footprint), 2 * step,
        height(x, z - step, footprint) - height(x, z + step, footprint)});
}

float Terrain::forest(float x, float z, float height, const Vec& normal) const
{
    const float patch = quickFractal(x / 260, z / 260, 401, 4);
    const float treeline = 760 + 260 * quickFractal(x / 900, z / 900, 411, 3);
    return smoothStep(1.5f, 4, height) * smoothStep(treeline + 90, treeline - 140, height)
        * smoothStep(0.50f, 0.66f, normal.y) * smoothStep(-0.34f, -0.12f, patch);
}
