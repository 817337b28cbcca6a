// Weights that are known by a name: pure parts.
#pragma once

#include <optional>
#include <span>
#include <vector>

/// Weights of neighbors, row by row, the upper left first.
using KernelWeights = std::vector<double>;

struct KernelPreset {
    const char* name; // in English, context "KernelPreset"
    KernelWeights (*weights)(int columns, int rows);
    bool hasNoSum = false; // blackens even areas
    bool needsArea = false; // makes no sense for a single line

    bool isFor(int columns, int rows) const { return !needsArea || (columns > 1 && rows > 1); }
};
std::span<const KernelPreset> kernelPresets();

/// With a sum of 1; nothing when the sum is 0, or is 1 already.
std::optional<KernelWeights> normalized(const KernelWeights& weights);
