#include "files/StoredBitmap.h"

#include "platform/foundation/PackedBitmap.h"
#include "platform/imageio/ImageLog.h"

#include <QDir>

#include <limits>

StoredBitmap::StoredBitmap(const QString& folder)
    : m_file(folder + QStringLiteral("/history-XXXXXX"))
{
}

std::unique_ptr<StoredBitmap> StoredBitmap::write(const CIBitmap& bitmap, const QString& folder)
{
    QDir().mkpath(folder);
    std::unique_ptr<StoredBitmap> stored(new StoredBitmap(folder));
    if (bitmap.isNull() || !stored->store(bitmap)) {
        imageLog("A picture of the history can't be stored: " + stored->m_file.errorString().toStdString());
        return nullptr;
    }
    return stored;
}

bool StoredBitmap::store(const CIBitmap& bitmap)
{
    return m_file.open() && packBitmap(bitmap, m_file) && m_file.flush();
}

CIBitmap StoredBitmap::read()
{
    m_file.seek(0);
    return unpackBitmap(m_file, std::numeric_limits<std::int64_t>::max()); // no limit: it has been in memory before
}
