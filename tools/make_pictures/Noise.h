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

/// Gradient noise that never repeats and spends no time on trigonometry; about -1...1.
inline float quickNoise(float x, float y, std::uint32_t seed)
{
    const float floorX = std::floor(x), floorY = std::floor(y);
    const int cellX = static_cast<int>(floorX), cellY = static_cast<int>(floorY);
    const float u = x - floorX, v = y - floorY;
    const auto corner = [=](int dx, int dy) {
        std::uint32_t h = static_cast<std::uint32_t>(cellX + dx) * 0x9E3779B1u
            ^ static_cast<std::uint32_t>(cellY + dy) * 0x85EBCA77u ^ seed * 0xC2B2AE3Du;
        h = (h ^ (h >> 15)) * 0x2C1B3C6Du;
        h = (h ^ (h >> 13)) * 0x297A2D39u;
        h ^= h >> 16;
        const float gx = static_cast<float>(h & 0xFFFF) * (2 / 65535.0f) - 1;
        const float gy = static_cast<float>(h >> 16) * (2 / 65535.0f) - 1;
        return gx * (u - static_cast<float>(dx)) + gy * (v - static_cast<float>(dy));
    };
    const float fadeX = u * u * u * (u * (u * 6 - 15) + 10), fadeY = v * v * v * (v * (v * 6 - 15) + 10);
    return 1.6f * mixed(mixed(corner(0, 0), corner(1, 0), fadeX), mixed(corner(0, 1), corner(1, 1), fadeX), fadeY);
}

/// The same in three dimensions, from random values instead of slopes: softer, -1...1.
inline float quickNoise3(float x, float y, float z, std::uint32_t seed)
{
    const float floorX = std::floor(x), floorY = std::floor(y), floorZ = std::floor(z);
    const int cx = static_cast<int>(floorX), cy = static_cast<int>(floorY), cz = static_cast<int>(floorZ);
    const auto fade = [](float t) { return t * t * (3 - 2 * t); };
    const float u = fade(x - floorX), v = fade(y - floorY), w = fade(z - floorZ);
    const auto value = [=](int dx, int dy, int dz) {
        std::uint32_t h = static_cast<std::uint32_t>(cx + dx) * 0x9E3779B1u
            ^ static_cast<std::uint32_t>(cy + dy) * 0x85EBCA77u ^ static_cast<std::uint32_t>(cz + dz) * 0x27D4EB2Fu
            ^ seed * 0xC2B2AE3Du;
        h = (h ^ (h >> 15)) * 0x2C1B3C6Du;
        h = (h ^ (h >> 13)) * 0x297A2D39u;
        return static_cast<float>(h >> 8) * (2 / 16777216.0f) - 1;
    };
    const float near = mixed(mixed(value(0, 0, 0), value(1, 0, 0), u), mixed(value(0, 1, 0), value(1, 1, 0), u), v);
    const float far = mixed(mixed(value(0, 0, 1), value(1, 0, 1), u), mixed(value(0, 1, 1), value(1, 1, 1), u), v);
    return mixed(near, far, w);
}

/// Octaves of quickNoise, each a little over twice as fine and half as strong; about -1...1.
inline float quickFractal(float x, float y, std::uint32_t seed, int octaves)
{
    float sum = 0, strength = 0.5f;
    for (int octave = 0; octave < octaves; ++octave, strength *= 0.5f) {
        sum += strength * quickNoise(x, y, seed + static_cast<std::uint32_t>(octave));
        const float turned = 1.62f * x - 1.21f * y; // turned each time, so that no axis shows
        y = 1.21f * x + 1.62f * y + 3.7f;
        x = turned + 1.3f;
    }
    return sum;
}
