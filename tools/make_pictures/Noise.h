#pragma once

#include <cmath>
#include <cstdint>

/// A repeatable random number of 0...1 for a cell of the plane.
/// The mixing steps are those of Chris Wellons' low-bias 32-bit hash.
inline float cellRandom(int x, int y, std::uint32_t seed)
{
    std::uint32_t h =
        static_cast<std::uint32_t>(x) * 0x9E3779B1u ^ static_cast<std::uint32_t>(y) * 0x85EBCA77u ^ seed * 0xC2B2AE3Du;
    h ^= h >> 16;
    h *= 0x7FEB352Du;
    h ^= h >> 15;
    h *= 0x846CA68Bu;
    h ^= h >> 16;
    return static_cast<float>(h >> 8) * (1.0f / 16777216.0f);
}

inline float mixed(float a, float b, float t) { return a + (b - a) * t; }

/// 0 below `from`, 1 above `to`, smooth between.
inline float smoothStep(float from, float to, float x)
{
    const float t = std::fmin(std::fmax((x - from) / (to - from), 0.0f), 1.0f);
    return t * t * (3 - 2 * t);
}

/// Gradient noise after Perlin (2002), about -1...1, repeating after `period` cells each way (0: never).
inline float gradientNoise(float x, float y, std::uint32_t seed, int period = 0)
{
    const float floorX = std::floor(x), floorY = std::floor(y);
    const int cellX = static_cast<int>(floorX), cellY = static_cast<int>(floorY);
    const float u = x - floorX, v = y - floorY;
    const auto corner = [=](int dx, int dy) {
        int cx = cellX + dx, cy = cellY + dy;
        if (period > 0) {
            cx = ((cx % period) + period) % period;
            cy = ((cy % period) + period) % period;
        }
        const float angle = cellRandom(cx, cy, seed) * 6.2831853f;
        return std::cos(angle) * (u - static_cast<float>(dx)) + std::sin(angle) * (v - static_cast<float>(dy));
    };
    const float fadeX = u * u * u * (u * (u * 6 - 15) + 10), fadeY = v * v * v * (v * (v * 6 - 15) + 10);
    return 1.5f * mixed(mixed(corner(0, 0), corner(1, 0), fadeX), mixed(corner(0, 1), corner(1, 1), fadeX), fadeY);
}

/// Octaves of gradient noise, each twice as fine and half as strong; about -1...1. Repeats like its first octave.
inline float fractalNoise(float x, float y, std::uint32_t seed, int octaves, int period = 0)
{
    float sum = 0, strength = 0.5f;
    for (int octave = 0; octave < octaves; ++octave, strength *= 0.5f) {
        sum += strength * gradientNoise(x, y, seed + static_cast<std::uint32_t>(octave), period);
        x *= 2;
        y *= 2;
        period *= 2;
    }
    return sum;
}
