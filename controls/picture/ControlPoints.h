// The points of a filter that are dragged on the picture: pure parts.
#pragma once

#include "platform/coreimage/CIFilter.h"

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <vector>

/// What is dragged. Crossing corners can lead to numbers that stand for nothing.
namespace ParmMode {
inline constexpr std::uint32_t kNothing = 0;
inline constexpr std::uint32_t kPosition = 1;
inline constexpr std::uint32_t kTopLeft = 2;
inline constexpr std::uint32_t kBottomLeft = 3;
inline constexpr std::uint32_t kTopRight = 4;
inline constexpr std::uint32_t kBottomRight = 5;
inline constexpr std::uint32_t kOrigin = 8; // translation of a transform
inline constexpr std::uint32_t kPosition3 = 10;
} // namespace ParmMode

struct ControlPoint {
    std::string key;
    std::uint32_t mode = ParmMode::kNothing;
    CIPoint position; // picture pixels, y up
    std::string label; // "Bump Distortion Center"

    bool operator==(const ControlPoint&) const = default;
};

/// True for an input that has points on the picture.
bool hasControlPoint(const CIInputAttributes& input);

/// The points of all inputs that can be set, in the order in which they are tried for a click: by input, a rectangle's
/// corners as top right, top left, bottom right, bottom left.
std::vector<ControlPoint> controlPoints(const CIFilter& filter);

/// True if the first two points are the ends of a gradient from "inputColor0" to "inputColor1".
bool isLinearGradient(const CIFilter& filter);

/// The index of the point nearest to `p`, the earlier of equally near ones; nothing when there are no points.
/// Distances are compared in single precision.
std::optional<std::size_t> nearestControlPoint(std::span<const ControlPoint> points, CIPoint p);

struct DraggedValue {
    CIValue value;
    std::uint32_t mode = ParmMode::kNothing; // what the next drag moves: crossing an opposite edge renumbers corners
};

/// The input's value after its point of `mode` was dragged to `p`; nothing for a mode that moves nothing.
std::optional<DraggedValue> draggedValue(const CIValue& old, std::uint32_t mode, CIPoint p);
