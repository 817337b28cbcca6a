#pragma once

#include "tools/make_pictures/landscape/Vec.h"

#include <vector>

/// The evening sky, linear light, as far as the view and its mirror image see it.
/// Directions are given as slopes: `right` and `up` in metres per metre ahead.
class Sky {
public:
    /// `sunRight`, `sunUp`: where the disc stands.
    Sky(float sunRight, float sunUp);

    /// Air and clouds.
    Vec light(float right, float up) const;
    /// What far-away things fade into.
    Vec haze(float right, float up) const;
    /// How much the sun's surroundings glare from there, 0...1.
    float glare(float right, float up) const;

private:
    struct Cloud {
        Vec light;
        float clear; // share of what is behind that shows through
    };
    static constexpr int kWide = 2300, kHigh = 1000;
    static constexpr float kReach = 0.78f, kTop = 0.66f; // slopes that the table covers

    Vec air(float right, float up) const;
    Cloud cumulus(const Vec& ray) const;
    float cirrus(const Vec& ray) const;

    Vec m_towardsSun;
    std::vector<Vec> m_table;
};
