// Rays: light that is brighter in some directions than in others.
#pragma once

#include "platform/coreimage/filters/Waves.h"
#include "platform/coreimage/kernel/Pixel.h"

#include <array>

namespace ci {

/// Brightness by direction, about 1: ten waves around the circle with frequencies that share no factor. Time turns them
/// against each other. Strength is how far the rays leave the mean, contrast how hard they end.
template <class V>
class Striations {
public:
    Striations(const V& strength, const V& contrast, const V& time)
        : m_strength(strength)
        , m_contrast(contrast)
        , m_time(time)
    {
    }
    /// Never negative; with strength and contrast 1 the standard deviation is 0.4.
    V operator()(const Point<V>& from) const
    {
        const V turns = atan2(from.y, from.x) * (1 / kTwoPi);
        V sum(0.0f);
        for (std::size_t i = 0; i < kFrequencies.size(); ++i) {
            const float f = kFrequencies[i], turn = i % 2 ? f : -f;
            sum = sum + cosineOfTurns(V(turns * f + (kPhases[i] + m_time * (0.13f * turn)) * (1 / kTwoPi)));
        }
        const V hard = sum * m_contrast * 0.2f; // standard deviation 0.45 at contrast 1
        return max(V(1.0f + m_strength * hard / (1.0f + 0.25f * abs(hard))), 0.0f);
    }

private:
    static constexpr std::array<float, 10> kFrequencies{3, 7, 11, 17, 23, 31, 41, 53, 67, 83};
    static constexpr std::array<float, 10> kPhases{0.4f, 2.9f, 5.3f, 1.7f, 4.1f, 0.9f, 3.6f, 5.9f, 2.2f, 4.8f};
    V m_strength, m_contrast, m_time;
};

} // namespace ci
