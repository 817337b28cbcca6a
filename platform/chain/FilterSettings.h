// Stored settings of filters: favourites as the disk has them.
#pragma once

#include "platform/coreimage/CIFilter.h"
#include "platform/foundation/StoredRecords.h"

#include <QString>

#include <map>
#include <memory>
#include <string>
#include <vector>

/// The list of the favourites of filters in the user defaults.
inline const QString kFilterFavouritesKey = QStringLiteral("EffectsFavorites");

/// Values by key. A filter's settings have "class" (its name), "ToolTipName" and each input key.
struct FilterSettings {
    CIDictionary values;
    /// Large values that were not looked at yet: pictures stay on the disk until somebody asks for them.
    std::map<std::string, StoredData> unread;

    /// Reads it if need be. Nothing when there is none, or (with a line in the log) when it is damaged.
    CIValue valueForKey(const std::string& key) const;
    std::vector<std::string> keys() const; // of all that are there
    bool hasClass() const { return values.contains("class"); }
};

/// What the bytes hold; nothing, with a line in the log, when they can't be read.
CIValue unarchivedValue(const QByteArray& bytes);

/// All values of a record but those under `leftOut`.
FilterSettings settingsFrom(const StoredRecord& record, const QString& leftOut = {});

/// A name for each entry, unlike all others: what its button says, or its class, and a number where that is not enough:
/// "Gaussian Blur", "Gaussian Blur (2)". Empty for entries without a class.
std::vector<std::string> namesOf(const std::vector<FilterSettings>& list);

/// Sets the inputs and notes for which there is a value; the others stay.
void applySettings(const FilterSettings& settings, CIFilter& filter);
