#pragma once

#include "tools/make_pictures/landscape/Vec.h"

#include <vector>

/// An alpine valley: a lake at height 0 with its near end at the viewer's feet, hills to both sides, snow peaks behind.
/// Metres; the viewer stands at x = 0, z = 0 and looks along z.
class Terrain {
public:
    /// Piles up the mountains, lets rain wear them down, and works out where the light of the sun and the sky gets.
    explicit Terrain(const Vec& towardsSun);

    /// Height of the ground; `footprint` is the size in metres below which detail may be left out.
    float height(float x, float z, float footprint) const;
    Vec normal(float x, float z, float footprint) const;
    /// 0 in the mountains' shadow, 1 in full sun.
    float sunlight(float x, float z) const { return sampled(m_sunlight, x, z); }
    /// 0 in a cleft, 1 on an open plain.
    float openness(float x, float z) const { return sampled(m_openness, x, z); }
    /// How densely trees stand, 0...1.
    float forest(float x, float z, float height, const Vec& normal) const;

    static constexpr float kFar = 18400; // metres from the viewer to the last ground

private:
    static constexpr int kCells = 2048;
    static constexpr float kCell = 9.2f; // metres
    static constexpr float kLeft = -9420, kFront = -400;

    float& cell(int x, int z) { return m_heights[static_cast<std::size_t>(z) * kCells + x]; }
    float cell(int x, int z) const { return m_heights[static_cast<std::size_t>(z) * kCells + x]; }
    float sampled(const std::vector<float>& grid, float x, float z) const;
    float smoothHeight(float x, float z) const;
    void raise();
    void erode(int drops);
    void settle();
    void light(const Vec& towardsSun);

    std::vector<float> m_heights, m_sunlight, m_openness;
};
