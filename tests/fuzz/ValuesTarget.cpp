#include "tests/fuzz/Targets.h"

#include "platform/coreimage/CIFilter.h"
#include "platform/coreimage/CIPlugIn.h"
#include "tools/lumivex-render/Arguments.h"
#include "tools/lumivex-render/InputValues.h"

#include <map>
#include <sstream>

namespace {

/// One input of each kind.
std::vector<CIInputAttributes> kindsOfInputs()
{
    CIPlugIn::loadAllPlugIns();
    std::map<std::pair<InputKind, std::size_t>, CIInputAttributes> kinds;
    for (const std::string& name : CIFilter::filterNamesInCategory("")) {
        const std::shared_ptr<CIFilter> filter = CIFilter::filterWithName(name);
        for (const std::string& key : filter->inputKeys())
            if (const CIInputAttributes* input = filter->attributesForKey(key))
                kinds.emplace(std::pair(input->kind, input->defaultValue.toVector().count()), *input);
    }
    std::vector<CIInputAttributes> inputs;
    for (const auto& [kind, input] : kinds)
        inputs.push_back(input);
    return inputs;
}

} // namespace

void fuzzValues(FuzzBytes content)
{
    static const std::vector<CIInputAttributes> inputs = kindsOfInputs();
    const std::string text(reinterpret_cast<const char*>(content.data()), content.size());
    std::vector<std::string> words;
    std::istringstream lines(text);
    for (std::string line; std::getline(lines, line);)
        words.push_back(line);
    try {
        static_cast<void>(parseArguments(words));
    } catch (const UsageError&) {
    }
    words.push_back(text);
    for (const std::string& word : words)
        for (const CIInputAttributes& input : inputs)
            try {
                static_cast<void>(inputValue(input, word));
            } catch (const UsageError&) {
            }
}
