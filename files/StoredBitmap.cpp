#include "files/StoredBitmap.h"

#include "platform/imageio/ImageLog.h"

#include <QDir>

#include <algorithm>
#include <vector>

#include <zstd.h>

namespace {

constexpr int kRowsAtOnce = 64;
constexpr int kLevel = 1; // nearly as fast as the disk

} // namespace

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
    m_width = bitmap.width();
    m_height = bitmap.height();
    m_format = bitmap.format();
    m_alpha = bitmap.alpha();
    m_space = bitmap.colorSpace();
    if (!m_file.open())
        return false;
    const std::size_t rowBytes = std::size_t(m_width) * bytesPerPixel(m_format);
    std::vector<std::byte> rows(rowBytes * kRowsAtOnce), packed(ZSTD_compressBound(rows.size()));
    for (int top = 0; top < m_height; top += kRowsAtOnce) {
        const int count = std::min(kRowsAtOnce, m_height - top);
        for (int y = 0; y < count; ++y)
            std::copy_n(bitmap.row(top + y), rowBytes, rows.data() + std::size_t(y) * rowBytes);
        const std::size_t size =
            ZSTD_compress(packed.data(), packed.size(), rows.data(), rowBytes * std::size_t(count), kLevel);
        if (ZSTD_isError(size))
            return false;
        const auto length = quint64(size);
        if (m_file.write(reinterpret_cast<const char*>(&length), sizeof length) != sizeof length
            || m_file.write(reinterpret_cast<const char*>(packed.data()), qint64(size)) != qint64(size))
            return false;
    }
    return m_file.flush();
}

CIBitmap StoredBitmap::read()
{
    CIBitmap bitmap(m_width, m_height, m_format, m_alpha, m_space);
    const std::size_t rowBytes = std::size_t(m_width) * bytesPerPixel(m_format);
    std::vector<std::byte> rows(rowBytes * kRowsAtOnce), packed(ZSTD_compressBound(rows.size()));
    m_file.seek(0);
    for (int top = 0; top < m_height; top += kRowsAtOnce) {
        const auto count = std::size_t(std::min(kRowsAtOnce, m_height - top));
        quint64 size = 0;
        if (m_file.read(reinterpret_cast<char*>(&size), sizeof size) != sizeof size || size > packed.size()
            || m_file.read(reinterpret_cast<char*>(packed.data()), qint64(size)) != qint64(size)
            || ZSTD_decompress(rows.data(), rows.size(), packed.data(), size) != rowBytes * count)
            return {};
        for (std::size_t y = 0; y < count; ++y)
            std::copy_n(rows.data() + y * rowBytes, rowBytes, bitmap.mutableRow(top + int(y)));
    }
    return bitmap;
}
