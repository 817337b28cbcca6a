#include "platform/chain/FilterSettings.h"

#include "platform/foundation/KeyedArchive.h"
#include "platform/foundation/Log.h"

#include <set>

CIValue unarchivedValue(const QByteArray& bytes)
{
    try {
        return KeyedArchive::unarchivedValue(bytes);
    } catch (const std::exception& error) {
        qCWarning(lumivexLog, "%s", error.what());
        return {};
    }
}

CIValue FilterSettings::valueForKey(const std::string& key) const
{
    if (const auto found = values.find(key); found != values.end())
        return found->second;
    const auto found = unread.find(key);
    return found == unread.end() ? CIValue() : unarchivedValue(found->second.bytes());
}

FilterSettings settingsFrom(const StoredRecord& record, const QString& leftOut)
{
    FilterSettings settings;
    for (const auto& [key, data] : record) {
        if (!leftOut.isEmpty() && key == leftOut)
            continue;
        if (data.isInFile())
            settings.unread[key.toStdString()] = data;
        else if (CIValue value = unarchivedValue(data.bytes()); !value.isNothing())
            settings.values[key.toStdString()] = std::move(value);
    }
    return settings;
}

std::vector<std::string> FilterSettings::keys() const
{
    std::vector<std::string> all;
    for (const auto& [key, value] : values)
        all.push_back(key);
    for (const auto& [key, data] : unread)
        all.push_back(key);
    return all;
}

std::vector<std::string> namesOf(const std::vector<FilterSettings>& list)
{
    std::vector<std::string> names;
    std::set<std::string> taken;
    for (const FilterSettings& settings : list) {
        std::string& name = names.emplace_back();
        if (!settings.hasClass())
            continue;
        std::string base = settings.valueForKey("ToolTipName").toString();
        if (base.empty())
            base = settings.valueForKey("class").toString();
        name = base;
        for (int number = 2; !taken.insert(name).second; ++number)
            name = base + " (" + std::to_string(number) + ")";
    }
    return names;
}

void applySettings(const FilterSettings& settings, CIFilter& filter)
{
    for (const std::string& key : settings.keys())
        if (const CIValue value = settings.valueForKey(key); !value.isNothing())
            filter.setValueForKey(value, key);
}
