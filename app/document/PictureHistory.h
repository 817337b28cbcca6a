// The pictures that undo steps go back to.
#pragma once

#include "files/StoredBitmap.h"
#include "platform/coreimage/CIImage.h"

#include <cstdint>
#include <future>
#include <memory>
#include <mutex>
#include <vector>

/// One picture, in memory or on the disk; lives as long as an undo step needs it.
class KeptPicture {
public:
    explicit KeptPicture(const CIImage& image);

    /// The picture, pixel for pixel; the very same image where it is still in use elsewhere. Reads the disk if need be.
    /// Null, with the reason logged, when that fails.
    CIImage image();

    std::int64_t bytesInMemory() const;
    bool isOnDisk() const;
    /// Moves the pixels to the disk; they stay where they are if it can't take them.
    void moveToDisk(const QString& folder);

private:
    mutable std::mutex m_mutex; // guards what follows: the picture moves on another thread
    std::weak_ptr<const ci::Node> m_shared;
    CIImage m_recipe; // of a picture that is more than a bitmap; takes no memory to speak of
    CIBitmap m_bitmap;
    std::unique_ptr<StoredBitmap> m_stored;
    bool m_diskRefused = false;
};

/// Keeps the pictures of the history within a budget of memory: the oldest go to the disk, and come back when their
/// step is undone. Used on the main thread; writing happens on another one.
class PictureHistory {
public:
    /// `folder` is made when it is needed; `budget` in bytes.
    PictureHistory(QString folder, std::int64_t budget)
        : m_folder(std::move(folder))
        , m_budget(budget)
    {
    }

    std::shared_ptr<KeptPicture> keep(const CIImage& image);

    void setBudget(std::int64_t bytes) { m_budget = bytes; }
    /// Waits for the disk first.
    std::int64_t bytesInMemory();

private:
    void wait();

    QString m_folder;
    std::int64_t m_budget;
    std::vector<std::weak_ptr<KeptPicture>> m_kept; // oldest first
    std::future<void> m_writing;
};
