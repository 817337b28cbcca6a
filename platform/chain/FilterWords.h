// What filters and effects are for, in plain words.
#pragma once

#include <map>
#include <string>
#include <string_view>

/// In English; where it is shown, it is translated.
struct FilterWords {
    std::string description; // a sentence
    std::string searchWords; // what people type who look for it, separated by ", ", what fits best first
};

/// By the name of the class of filters or effects; from resources/filter_words.txt.
const std::map<std::string, FilterWords, std::less<>>& allFilterWords();
/// Null when there are none.
const FilterWords* filterWords(std::string_view className);

/// What inputs are for, each in a sentence, by key or by "class.key" where it means something else in that class; '#'
/// stands for any digit. From resources/input_words.txt.
const std::map<std::string, std::string, std::less<>>& allInputDescriptions();
/// Empty when there is none.
std::string inputDescription(const std::string& className, const std::string& key);
