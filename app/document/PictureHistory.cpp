#include "app/document/PictureHistory.h"

#include "platform/chain/Baking.h"
#include "platform/imageio/ImageLog.h"

KeptPicture::KeptPicture(const CIImage& image)
    : m_shared(image.node())
{
    // The bitmap alone, without the reduced copies that the image has made of it.
    if (const CIBitmap* bitmap = bitmapOf(image))
        m_bitmap = *bitmap;
    else
        m_recipe = image;
}

CIImage KeptPicture::image()
{
    const std::lock_guard lock(m_mutex);
    if (const auto node = m_shared.lock())
        return CIImage(node);
    if (m_recipe)
        return m_recipe;
    if (m_stored) {
        try {
            m_bitmap = m_stored->read();
        } catch (const std::bad_alloc&) {
            imageLog("There is no memory for a picture of the history.");
        }
        if (!m_bitmap.isNull())
            m_stored.reset();
    }
    return CIImage::fromBitmap(m_bitmap);
}

std::int64_t KeptPicture::bytesInMemory() const
{
    const std::lock_guard lock(m_mutex);
    return std::int64_t(m_bitmap.bytesPerRow()) * m_bitmap.height();
}

bool KeptPicture::isOnDisk() const
{
    const std::lock_guard lock(m_mutex);
    return m_stored != nullptr;
}

void KeptPicture::moveToDisk(const QString& folder)
{
    CIBitmap bitmap;
    {
        const std::lock_guard lock(m_mutex);
        if (m_bitmap.isNull() || m_diskRefused)
            return;
        bitmap = m_bitmap;
    }
    std::unique_ptr<StoredBitmap> stored = StoredBitmap::write(bitmap, folder); // slow: nobody waits for it
    const std::lock_guard lock(m_mutex);
    m_diskRefused = !stored;
    if (!stored)
        return;
    m_stored = std::move(stored);
    m_bitmap = {};
}

std::shared_ptr<KeptPicture> PictureHistory::keep(const CIImage& image)
{
    wait(); // so that no more than one picture is above the budget
    auto kept = std::make_shared<KeptPicture>(image);
    std::erase_if(m_kept, [](const std::weak_ptr<KeptPicture>& known) { return known.expired(); });
    m_kept.push_back(kept);
    std::int64_t bytes = 0;
    for (const std::weak_ptr<KeptPicture>& known : m_kept)
        bytes += known.lock()->bytesInMemory();
    std::vector<std::shared_ptr<KeptPicture>> leaving;
    for (const std::weak_ptr<KeptPicture>& known : m_kept) {
        if (bytes <= m_budget)
            break;
        const std::shared_ptr<KeptPicture> picture = known.lock();
        if (const std::int64_t size = picture->bytesInMemory(); size > 0) {
            bytes -= size;
            leaving.push_back(picture);
        }
    }
    if (!leaving.empty())
        m_writing = std::async(std::launch::async, [leaving = std::move(leaving), folder = m_folder] {
            for (const std::shared_ptr<KeptPicture>& picture : leaving)
                picture->moveToDisk(folder);
        });
    return kept;
}

void PictureHistory::wait()
{
    if (m_writing.valid())
        m_writing.get();
}

std::int64_t PictureHistory::bytesInMemory()
{
    wait();
    std::int64_t bytes = 0;
    for (const std::weak_ptr<KeptPicture>& known : m_kept)
        if (const std::shared_ptr<KeptPicture> picture = known.lock())
            bytes += picture->bytesInMemory();
    return bytes;
}
