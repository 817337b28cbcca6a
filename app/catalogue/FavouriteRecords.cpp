#include "app/catalogue/FavouriteRecords.h"

#include "platform/chain/FilterSettings.h"
#include "platform/foundation/KeyedArchive.h"
#include "platform/foundation/Log.h"
#include "platform/foundation/UserDefaults.h"

#include <QCryptographicHash>
#include <QFileInfo>

std::vector<QString> favouriteIds(const StoredRecords& records)
{
    std::vector<QString> ids;
    std::map<QString, int> count;
    for (const StoredRecord& record : records) {
        QString id;
        if (const auto named = record.find(kFavouriteIdKey); named != record.end())
            id = QString::fromStdString(unarchivedValue(named->second.bytes()).toString());
        if (id.isEmpty()) {
            QCryptographicHash hash(QCryptographicHash::Blake2b_160);
            for (const auto& [key, data] : record) {
                hash.addData(key.toUtf8());
                hash.addData(data.isInFile() ? QFileInfo(data.file()).fileName().toUtf8() : data.bytes());
            }
            id = QString::fromLatin1(hash.result().toHex());
        }
        const int number = count[id]++;
        ids.push_back(number == 0 ? id : QStringLiteral("%1 %2").arg(id).arg(number));
    }
    return ids;
}

void FavouriteArchiver::add(StoredRecord& record, const QString& key, const CIValue& value)
{
    const CIImage image = value.toImage();
    if (const auto known = m_images.find(image.node()); image && known != m_images.end()) {
        record[key] = known->second;
        return;
    }
    try {
        const std::optional<StoredData> data =
            UserDefaults::standardUserDefaults().storedDataForKey(KeyedArchive::archivedData(value), m_key);
        if (!data) {
            m_failed = true;
            return;
        }
        record[key] = *data;
        if (image)
            m_images[image.node()] = *data;
    } catch (const std::exception& error) {
        qCWarning(lumivexLog, "%s", error.what());
    }
}
