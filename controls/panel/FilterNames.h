// Names of filters and inputs in the user's language, and what filters are for. The engine says them in English.
#pragma once

#include "platform/chain/FilterWords.h"

#include <string>

#include <QCoreApplication>
#include <QString>

inline constexpr char kFilterContext[] = "Filter", kInputContext[] = "Input",
                      kDescriptionContext[] = "FilterDescription", kSearchWordsContext[] = "FilterSearchWords",
                      kInputDescriptionContext[] = "InputDescription";

/// Of a filter's display name.
inline QString shownFilterName(const std::string& displayName)
{
    return QCoreApplication::translate(kFilterContext, displayName.c_str());
}

/// Of an input's display name, or of the words of its key.
inline QString shownInputName(const std::string& displayName)
{
    return QCoreApplication::translate(kInputContext, displayName.c_str());
}

/// What a class of filters or effects does, in a sentence; empty when nobody says.
inline QString shownFilterDescription(const std::string& className)
{
    const FilterWords* words = filterWords(className);
    return words ? QCoreApplication::translate(kDescriptionContext, words->description.c_str()) : QString();
}

/// What an input of that class is for, in a sentence; empty when nobody says.
inline QString shownInputDescription(const std::string& className, const std::string& key)
{
    const std::string description = inputDescription(className, key);
    return description.empty() ? QString() : QCoreApplication::translate(kInputDescriptionContext, description.c_str());
}

/// Of a FilterWords.
inline QString shownSearchWords(const std::string& searchWords)
{
    return QCoreApplication::translate(kSearchWordsContext, searchWords.c_str());
}
