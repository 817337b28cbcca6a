// Names of filters and inputs in the user's language. The engine says them in English.
#pragma once

#include <string>

#include <QCoreApplication>
#include <QString>

inline constexpr char kFilterContext[] = "Filter", kInputContext[] = "Input";

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
