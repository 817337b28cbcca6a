// Favourites as the disk has them.
#pragma once

#include "platform/coreimage/CIValue.h"
#include "platform/foundation/StoredRecords.h"

#include <map>
#include <memory>

/// Of records that have been changed since lists are merged.
inline const QString kFavouriteIdKey = QStringLiteral("Identifier");

/// One for each record, the same in all windows, also of records that don't name one, and of equal ones.
std::vector<QString> favouriteIds(const StoredRecords& records);

/// Archives values into records. One picture is often part of several favourites; it is archived once.
class FavouriteArchiver {
public:
    explicit FavouriteArchiver(const QString& defaultsKey)
        : m_key(defaultsKey)
    {
    }

    /// A value that can't be archived is logged and left out.
    void add(StoredRecord& record, const QString& key, const CIValue& value);
    /// The disk has no room.
    bool hasFailed() const { return m_failed; }

private:
    QString m_key;
    std::map<std::shared_ptr<const ci::Node>, StoredData> m_images;
    bool m_failed = false;
};
