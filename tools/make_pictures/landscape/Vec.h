#pragma once

#include <algorithm>
#include <cmath>

/// A place or direction in metres (x right, y up, z away from the viewer), or linear RGB light.
struct Vec {
    float x = 0, y = 0, z = 0;

    Vec operator+(const Vec& o) const { return {x + o.x, y + o.y, z + o.z}; }
    Vec operator-(const Vec& o) const { return {x - o.x, y - o.y, z - o.z}; }
    Vec operator*(const Vec& o) const { return {x * o.x, y * o.y, z * o.z}; }
    Vec operator*(float k) const { return {x * k, y * k, z * k}; }
    Vec& operator+=(const Vec& o) { return *this = *this + o; }
};

inline float dot(const Vec& a, const Vec& b) { return a.x * b.x + a.y * b.y + a.z * b.z; }
inline Vec normalised(const Vec& v) { return v * (1 / std::sqrt(dot(v, v))); }
inline Vec mixed(const Vec& a, const Vec& b, float t) { return a + (b - a) * t; }
inline float luma(const Vec& c) { return 0.2126f * c.x + 0.7152f * c.y + 0.0722f * c.z; }
