#include "app/modes/StoredInputs.h"

#include "app/document/SessionFolder.h"
#include "app/modes/InputValues.h"
#include "platform/chain/FilterChain.h"
#include "platform/chain/Layers.h"

namespace {

const std::string kInput = "input:"; // followed by the input's key

} // namespace

CIDictionary favouriteValues(const CIFilter& filter)
{
    CIDictionary values{{"class", filter.name()}};
    for (const std::vector<std::string>& keys : {filter.inputKeys(), noteKeys(filter)})
        for (const std::string& key : keys)
            if (CIValue value = filter.valueForKey(key); !value.isNothing() && key != pictureKey(filter))
                values[key] = std::move(value);
    return values;
}

void saveInputs(const CIFilter& filter, const CIImage& picture, SessionState& state)
{
    CIDictionary inputs;
    for (const CIInputAttributes* input : usersInputs(filter)) {
        const CIValue value = filter.valueForKey(input->key);
        if (const CIImage image = value.toImage(); image) {
            if (image.node() != picture.node() && !image.extent().isInfinite())
                state.pictures[kInput + input->key] = image;
        } else if (!value.isNothing() && !value.isImage()) {
            inputs[input->key] = value;
        }
    }
    for (const std::string& key : noteKeys(filter))
        inputs[key] = filter.valueForKey(key);
    state.values["inputs"] = inputs;
}

void restoreInputs(CIFilter& filter, const SessionState& state)
{
    forgetNotes(filter);
    for (const auto& [key, value] : state.dictionary("inputs"))
        filter.setValueForKey(value, key);
    for (const std::string& key : filter.inputKeys())
        if (const auto stored = state.pictures.find(kInput + key); stored != state.pictures.end())
            filter.setValueForKey(stored->second, key);
}

void forgetNotes(CIFilter& filter)
{
    for (const std::string& key : noteKeys(filter))
        filter.setValueForKey({}, key);
}
