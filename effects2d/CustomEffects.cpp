#include "effects2d/CustomEffects.h"

#include "effects2d/flareEffect.h"
#include "effects2d/hilbertLinesEffect.h"
#include "effects2d/linesEffect.h"
#include "effects2d/patchWorkEffect.h"
#include "effects2d/patMorphingEffect.h"
#include "effects2d/plasmaEffect.h"
#include "effects2d/simpleEffects.h"
#include "effects2d/sketchEffect.h"

namespace {

template <class... Effects>
std::vector<std::shared_ptr<BaseEffect>> prototypesOf()
{
    std::vector<std::shared_ptr<BaseEffect>> prototypes{std::make_shared<Effects>()...};
    for (const std::shared_ptr<BaseEffect>& prototype : prototypes)
        prototype->awakeFromNib();
    return prototypes;
}

} // namespace

std::vector<std::shared_ptr<BaseEffect>> customEffectPrototypes()
{
    return prototypesOf<simpleEffects, linesEffect, hilbertLinesEffect, patchWorkEffect, flareEffect, plasmaEffect,
        patMorphingEffect, sketchEffect>();
}

std::shared_ptr<BaseEffect> customEffectFromDictionary(
    const std::vector<std::shared_ptr<BaseEffect>>& prototypes, const CIDictionary& dictionary)
{
    const auto stored = dictionary.find("class");
    if (stored == dictionary.end())
        return {};
    for (const std::shared_ptr<BaseEffect>& prototype : prototypes) {
        if (prototype->className() != stored->second.toString())
            continue;
        std::shared_ptr<BaseEffect> effect = prototype->mycopy();
        effect->read(dictionary);
        return effect;
    }
    return {};
}
