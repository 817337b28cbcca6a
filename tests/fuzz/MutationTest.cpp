// The fuzzers' targets with a few thousand broken inputs, the same ones each time.
#include "tests/fuzz/Targets.h"

#include <algorithm>
#include <random>

#include <gtest/gtest.h>

namespace {

using Input = std::vector<std::byte>;

class Mutator {
public:
    explicit Mutator(const std::vector<Input>& seeds)
        : m_seeds(seeds)
    {
    }

    Input broken(const Input& seed)
    {
        Input input = seed;
        switch (below(4)) {
        case 0:
            input.resize(below(input.size()) + 1);
            break;
        case 1: { // goes on with a piece of another one
            const Input& other = m_seeds[below(m_seeds.size())];
            input.resize(below(input.size()) + 1);
            input.insert(input.end(), other.begin() + std::ptrdiff_t(below(other.size())), other.end());
            break;
        }
        case 2: { // counts and lengths at their ends
            constexpr std::byte ends[] = {std::byte(0), std::byte(0x7f), std::byte(0x80), std::byte(0xff)};
            const std::size_t at = below(input.size()), size = std::size_t(1) << below(4);
            std::fill_n(input.begin() + std::ptrdiff_t(at), std::min(size, input.size() - at), ends[below(4)]);
            break;
        }
        default:
            for (std::size_t flips = below(4) + 1; flips > 0; --flips)
                input[below(2) ? below(input.size()) : below(std::min<std::size_t>(input.size(), 200))] ^=
                    std::byte(1 << below(8));
        }
        return input;
    }

private:
    std::size_t below(std::size_t end) { return m_random() % end; } // the same on every machine

    const std::vector<Input>& m_seeds;
    std::mt19937 m_random{12345};
};

class Mutations : public testing::TestWithParam<FuzzTarget> { };

TEST_P(Mutations, AreReadOrRefused)
{
    constexpr std::size_t kInputs = 900;
    const std::vector<Input> seeds = seedsOf(GetParam().name);
    ASSERT_FALSE(seeds.empty());
    Mutator mutator(seeds);
    for (const Input& seed : seeds) {
        ASSERT_FALSE(seed.empty());
        GetParam().run(seed);
    }
    for (std::size_t i = 0; i < kInputs; ++i)
        ASSERT_NO_THROW(GetParam().run(mutator.broken(seeds[i % seeds.size()]))) << i;
}

INSTANTIATE_TEST_SUITE_P(EveryTarget, Mutations, testing::ValuesIn(kFuzzTargets),
    [](const auto& target) { return std::string(target.param.name); });

} // namespace
