#include "controls/editors/KernelPresets.h"

#include <QtGlobal>

#include <algorithm>
#include <cmath>
#include <numeric>

namespace {

/// `weight(x, y)` for each neighbor, in steps right of and above the middle.
template <class F>
KernelWeights sampled(int columns, int rows, F weight)
{
    KernelWeights weights;
    for (int row = 0; row < rows; ++row)
        for (int column = 0; column < columns; ++column)
            weights.push_back(weight(column - columns / 2, rows / 2 - row));
    return weights;
}

double sumOf(const KernelWeights& weights) { return std::accumulate(weights.begin(), weights.end(), 0.0); }

/// So that the amounts of all weights sum up to `sum`.
KernelWeights scaled(KernelWeights weights, double sum)
{
    double amounts = 0;
    for (double weight : weights)
        amounts += std::abs(weight);
    for (double& weight : weights)
        weight *= sum / amounts;
    return weights;
}

double bell(double x, double y, int longest)
{
    const double sigma = 0.25 * (longest - 1) + 0.2; // as wide as the grid has room for
    return std::exp(-(x * x + y * y) / (2 * sigma * sigma));
}

KernelWeights identity(int columns, int rows)
{
    return sampled(columns, rows, [](int x, int y) { return x == 0 && y == 0 ? 1.0 : 0.0; });
}
KernelWeights box(int columns, int rows) { return KernelWeights(std::size_t(columns * rows), 1.0 / (columns * rows)); }
KernelWeights gaussian(int columns, int rows)
{
    const int longest = std::max(columns, rows);
    return scaled(sampled(columns, rows, [&](int x, int y) { return bell(x, y, longest); }), 1);
}
/// Twice the picture less a soft one.
KernelWeights sharpen(int columns, int rows)
{
    KernelWeights weights = gaussian(columns, rows);
    for (double& weight : weights)
        weight *= -1;
    weights[weights.size() / 2] += 2;
    return weights;
}
/// What differs from the neighbors; even areas become black.
KernelWeights edges(int columns, int rows)
{
    KernelWeights weights(std::size_t(columns * rows), -8.0 / (columns * rows - 1));
    weights[weights.size() / 2] = 8;
    return weights;
}
KernelWeights uprightEdges(int columns, int rows)
{
    const int longest = std::max(columns, rows);
    return scaled(sampled(columns, rows, [&](int x, int y) { return x * bell(x, y, longest); }), 8);
}
KernelWeights levelEdges(int columns, int rows)
{
    const int longest = std::max(columns, rows);
    return scaled(sampled(columns, rows, [&](int x, int y) { return y * bell(x, y, longest); }), 8);
}
/// A relief in light from the upper left.
KernelWeights emboss(int columns, int rows)
{
    KernelWeights weights = scaled(sampled(columns, rows, [](int x, int y) { return double(x - y); }), 8);
    weights[weights.size() / 2] = 1;
    return weights;
}

const KernelPreset kPresets[] = {
    {QT_TRANSLATE_NOOP("KernelPreset", "No change"), identity},
    {QT_TRANSLATE_NOOP("KernelPreset", "Box blur"), box},
    {QT_TRANSLATE_NOOP("KernelPreset", "Gaussian blur"), gaussian},
    {QT_TRANSLATE_NOOP("KernelPreset", "Sharpen"), sharpen},
    {QT_TRANSLATE_NOOP("KernelPreset", "Emboss"), emboss},
    {QT_TRANSLATE_NOOP("KernelPreset", "Edges"), edges, true},
    {QT_TRANSLATE_NOOP("KernelPreset", "Upright edges"), uprightEdges, true, true},
    {QT_TRANSLATE_NOOP("KernelPreset", "Level edges"), levelEdges, true, true},
};

} // namespace

std::span<const KernelPreset> kernelPresets() { return kPresets; }

std::optional<KernelWeights> normalized(const KernelWeights& weights)
{
    const double sum = sumOf(weights);
    if (std::abs(sum) < 1e-6 || std::abs(sum - 1) < 1e-9)
        return {};
    KernelWeights result = weights;
    for (double& weight : result)
        weight /= sum;
    return result;
}
