// Values for all inputs of a filter at once: pure rules.
#pragma once

#include "platform/coreimage/CIFilter.h"

#include <optional>
#include <random>
#include <vector>

/// The inputs that the user sets: not the one that receives the picture, nor those that every rendering sets.
std::vector<const CIInputAttributes*> usersInputs(const CIFilter& filter);

/// True for an input that has values to choose from at random: pictures and texts have none, nor have numbers without a
/// slider's range.
bool canBeRandom(const CIInputAttributes& input);

/// Numbers from the slider's range, points and rectangles within `picture` (picture pixels), opaque colors that keep
/// their opacity, other vectors around their default. Nothing where there is nothing to choose from.
std::optional<CIValue> randomValue(
    const CIInputAttributes& input, const CIValue& old, const CIRect& picture, std::mt19937& random);
