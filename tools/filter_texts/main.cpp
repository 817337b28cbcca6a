// filter_texts: the names of all filters and inputs and what they are for, as source text that lupdate reads.
#include "controls/panel/FilterNames.h"
#include "controls/panel/ParameterText.h"
#include "platform/coreimage/CIFilter.h"

#include <iostream>
#include <set>

namespace {

void print(const char* context, const std::set<std::string>& texts)
{
    for (const std::string& text : texts)
        std::cout << "QT_TRANSLATE_NOOP(\"" << context << "\", \"" << text << "\")\n";
}

} // namespace

int main()
{
    std::set<std::string> filters, inputs;
    for (const std::string& name : CIFilter::filterNamesInCategory("")) {
        const auto filter = CIFilter::filterWithName(name);
        filters.insert(filter->displayName());
        for (const std::string& key : filter->inputKeys()) {
            inputs.insert(filter->attributesForKey(key)->displayName);
            // Undo steps and rows without a display name say the key.
            inputs.insert(wordsOfKey(QString::fromStdString(key).mid(5)).toStdString());
        }
    }
    inputs.erase("");
    std::set<std::string> descriptions, searchWords;
    for (const auto& [className, words] : allFilterWords()) {
        descriptions.insert(words.description);
        searchWords.insert(words.searchWords);
    }
    std::set<std::string> inputDescriptions;
    for (const auto& [key, description] : allInputDescriptions())
        inputDescriptions.insert(description);
    print(kFilterContext, filters);
    print(kInputContext, inputs);
    print(kDescriptionContext, descriptions);
    print(kSearchWordsContext, searchWords);
    print(kInputDescriptionContext, inputDescriptions);
}
