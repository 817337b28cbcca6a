#include "effects2d/CustomEffects.h"

#include "effects2d/flareEffect.h"
#include "effects2d/hilbertLinesEffect.h"
#include "effects2d/linesEffect.h"
#include "effects2d/patchWorkEffect.h"
#include "effects2d/patMorphingEffect.h"
#include "effects2d/plasmaEffect.h"
#include "effects2d/simpleEffects.h"
#include "effects2d/sketchEffect.h"

std::vector<std::shared_ptr<BaseEffect>> customEffectPrototypes()
{
    std::vector<std::shared_ptr<BaseEffect>> prototypes{std::make_shared<simpleEffects>(),
        std::make_shared<linesEffect>(), std::make_shared<hilbertLinesEffect>(), std::make_shared<patchWorkEffect>(),
        std::make_shared<flareEffect>(), std::make_shared<plasmaEffect>(), std::make_shared<patMorphingEffect>(),
        std::make_shared<sketchEffect>()};
    for (const std::shared_ptr<BaseEffect>& prototype : prototypes)
        prototype->awakeFromNib();
    return prototypes;
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
