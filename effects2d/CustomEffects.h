// The list of generated effects.
#pragma once

#include "effects2d/BaseEffect.h"

#include <vector>

/// New prototypes of all generated effects with what the user starts from, in list order.
std::vector<std::shared_ptr<BaseEffect>> customEffectPrototypes();

/// An effect with the stored parameters (`BaseEffect::save`), made from the prototype of its class. Null when the
/// dictionary names none of their classes.
std::shared_ptr<BaseEffect> customEffectFromDictionary(
    const std::vector<std::shared_ptr<BaseEffect>>& prototypes, const CIDictionary& dictionary);
