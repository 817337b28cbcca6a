// Tables of floats, as data inputs hold them.
#pragma once

#include "platform/coreimage/CIValue.h"

#include <cstring>
#include <span>

inline CIData dataOf(std::span<const float> numbers)
{
    const auto bytes = std::as_bytes(numbers);
    return {bytes.begin(), bytes.end()};
}

inline std::vector<float> floatsOf(const CIData& data)
{
    std::vector<float> numbers(data.size() / sizeof(float));
    std::memcpy(numbers.data(), data.data(), numbers.size() * sizeof(float));
    return numbers;
}
