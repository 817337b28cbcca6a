// Values for all inputs of a filter at once: pure rules.
#pragma once

#include "platform/coreimage/CIFilter.h"

#include <optional>
#include <random>

/// True for an input that the user sets; false for the one that receives the picture and for those that every
/// rendering sets.
bool isUsersInput(const CIFilter& filter, const CIInputAttributes& input);

/// True for an input that has values to choose from at random: pictures and texts have none, nor have numbers without a
/// slider's range.
bool canBeRandom(const CIInputAttributes& input);

/// Numbers from the slider's range, points and rectangles within `picture` (picture pixels), opaque colors that keep
/// their opacity, other vectors around their default. Nothing where there is nothing to choose from.
std::optional<CIValue> randomValue(
    const CIInputAttributes& input, const CIValue& old, const CIRect& picture, std::mt19937& random);
