#include "platform/coreimage/CIColorProfile.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <deque>
#include <mutex>
#include <stdexcept>

namespace {

constexpr std::size_t kCodes = 65536;
constexpr int kNamed = int(CIColorSpace::LinearSRGB) + 1;

/// By Cramer's rule.
std::array<float, 9> inverseOf(const std::array<float, 9>& matrix)
{
    std::array<double, 9> m{}, cofactors{};
    std::ranges::copy(matrix, m.begin());
    for (std::size_t row = 0; row < 3; ++row)
        for (std::size_t column = 0; column < 3; ++column) {
            const std::size_t r1 = (row + 1) % 3 * 3, r2 = (row + 2) % 3 * 3;
            const std::size_t c1 = (column + 1) % 3, c2 = (column + 2) % 3;
            cofactors[3 * column + row] = m[r1 + c1] * m[r2 + c2] - m[r1 + c2] * m[r2 + c1];
        }
    const double determinant = m[0] * cofactors[0] + m[1] * cofactors[3] + m[2] * cofactors[6];
    constexpr double kFlat = 1e-6;
    if (!(std::abs(determinant) > kFlat))
        throw std::invalid_argument("a color space without three colors");
    std::array<float, 9> inverse{};
    for (std::size_t i = 0; i < 9; ++i)
        inverse[i] = float(cofactors[i] / determinant);
    return inverse;
}

template <class T>
void put(std::string& bytes, const T* values, std::size_t count)
{
    bytes.append(reinterpret_cast<const char*>(values), count * sizeof(T));
}

template <class T>
void take(std::string_view& bytes, T* values, std::size_t count)
{
    if (bytes.size() / sizeof(T) < count)
        throw std::invalid_argument("a color space that is cut off");
    std::memcpy(values, bytes.data(), count * sizeof(T));
    bytes.remove_prefix(count * sizeof(T));
}

template <class Values>
void takeCounted(std::string_view& bytes, Values& values)
{
    std::uint32_t count = 0;
    take(bytes, &count, 1);
    if (count > bytes.size())
        throw std::invalid_argument("a color space that is cut off");
    values.resize(count);
    take(bytes, values.data(), count);
}

/// Never shrinks, so that what it hands out stays.
class Registry {
public:
    CIColorSpace add(CIColorProfile&& profile)
    {
        constexpr std::size_t kMost = 500; // a quarter of a megabyte each
        const std::lock_guard lock(m_mutex);
        for (std::size_t i = 0; i < m_spaces.size(); ++i)
            if (m_spaces[i].profile() == profile)
                return CIColorSpace(kNamed + int(i));
        if (m_spaces.size() == kMost)
            throw std::invalid_argument("a color space too many");
        m_spaces.emplace_back(std::move(profile));
        return CIColorSpace(kNamed + int(m_spaces.size()) - 1);
    }
    const CIProfiledSpace* find(CIColorSpace space)
    {
        const std::lock_guard lock(m_mutex);
        const std::size_t index = std::size_t(int(space) - kNamed);
        return int(space) >= kNamed && index < m_spaces.size() ? &m_spaces[index] : nullptr;
    }
    static Registry& shared()
    {
        static Registry registry;
        return registry;
    }

private:
    std::mutex m_mutex;
    std::deque<CIProfiledSpace> m_spaces;
};

} // namespace

CIProfiledSpace::CIProfiledSpace(CIColorProfile profile)
    : m_profile(std::move(profile))
    , m_fromLinearSRGB(inverseOf(m_profile.toLinearSRGB))
{
    const std::vector<float>& light = m_profile.light;
    const bool isInside = light.size() == kCodes && light.front() >= 0 && light.back() <= 1;
    if (!isInside || std::ranges::adjacent_find(light, [](float a, float b) { return !(a <= b); }) != light.end())
        throw std::invalid_argument("a color space without a curve");
    for (std::size_t i = 0; i < m_first.size(); ++i) {
        const float root = float(i) / kSteps;
        const auto above = std::ranges::upper_bound(light, root * root);
        m_first[i] = std::uint16_t(std::max<std::ptrdiff_t>(above - light.begin() - 1, 0));
    }
}

std::uint16_t CIProfiledSpace::codeOf(float wanted) const
{
    const float value = wanted > 0 ? std::min(wanted, 1.0f) : 0.0f; // not-a-number becomes 0
    const float* const light = m_profile.light.data();
    std::size_t code = m_first[std::size_t(std::sqrt(value) * kSteps)];
    while (code + 1 < kCodes && light[code + 1] <= value)
        ++code;
    if (code + 1 < kCodes && light[code + 1] - value < value - light[code])
        ++code;
    return std::uint16_t(code);
}

CIColorSpace colorSpaceOf(CIColorProfile profile) { return Registry::shared().add(std::move(profile)); }

const CIProfiledSpace* profiledSpace(CIColorSpace space)
{
    return int(space) < kNamed ? nullptr : Registry::shared().find(space);
}

std::string packedSpace(CIColorSpace space)
{
    const CIProfiledSpace* const profiled = profiledSpace(space);
    std::string bytes(1, char(profiled ? kNamed : int(space)));
    if (!profiled)
        return bytes;
    const CIColorProfile& profile = profiled->profile();
    const auto nameSize = std::uint32_t(profile.name.size()), iccSize = std::uint32_t(profile.icc.size());
    put(bytes, &nameSize, 1);
    put(bytes, profile.name.data(), nameSize);
    put(bytes, &iccSize, 1);
    put(bytes, profile.icc.data(), iccSize);
    put(bytes, profile.toLinearSRGB.data(), profile.toLinearSRGB.size());
    put(bytes, profile.light.data(), profile.light.size());
    return bytes;
}

CIColorSpace unpackedSpace(std::string_view bytes)
{
    char kind = 0;
    take(bytes, &kind, 1);
    if (kind >= 0 && kind < kNamed)
        return CIColorSpace(kind);
    if (kind != kNamed)
        throw std::invalid_argument("an unknown color space");
    CIColorProfile profile;
    takeCounted(bytes, profile.name);
    takeCounted(bytes, profile.icc);
    take(bytes, profile.toLinearSRGB.data(), profile.toLinearSRGB.size());
    profile.light.resize(kCodes);
    take(bytes, profile.light.data(), kCodes);
    return colorSpaceOf(std::move(profile));
}
