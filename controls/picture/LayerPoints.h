// The handles of what a filter lays onto the picture: pure parts.
#pragma once

#include "controls/picture/ControlPoints.h"
#include "platform/chain/Layers.h"

namespace ParmMode {
inline constexpr std::uint32_t kLayerMiddle = 20;
inline constexpr std::uint32_t kLayerTopRight = 21;
inline constexpr std::uint32_t kLayerTopLeft = 22;
inline constexpr std::uint32_t kLayerBottomRight = 23;
inline constexpr std::uint32_t kLayerBottomLeft = 24;
} // namespace ParmMode

inline bool isLayerMode(std::uint32_t mode) { return mode >= ParmMode::kLayerMiddle; }

/// Of each layer the middle, by which it is moved, and the corners, by which it is scaled.
std::vector<ControlPoint> layerPoints(const CIFilter& filter, std::span<const FreeLayer> layers);

/// What a press at `p` takes hold of, an index in `points`, which may have stated ones before: the point within
/// `reach`, or the middle of the layer that lies there. Picture pixels.
std::optional<std::size_t> layerPointAt(
    std::span<const ControlPoint> points, std::span<const FreeLayer> layers, CIPoint p, double reach);

/// Where the layer lies when its point of `mode` is dragged to `to`. The opposite corner stays when a corner is, and so
/// do the proportions.
LayerPlace draggedLayer(const FreeLayer& layer, std::uint32_t mode, CIPoint to);
