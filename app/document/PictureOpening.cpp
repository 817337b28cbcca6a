#include "app/document/PictureOpening.h"

#include "app/document/Document.h"
#include "platform/chain/Baking.h"
#include "platform/imageio/LooseThread.h"
#include "platform/imageio/reader_process/ReaderProcess.h"

#include <QFile>
#include <QFileInfo>
#include <QMetaObject>

#include <algorithm>
#include <chrono>
#include <future>
#include <mutex>
#include <new>
#include <optional>
#include <span>

namespace {

using namespace std::chrono_literals;

constexpr double kLarge = 8e6; // px; smaller pictures are there at once
constexpr std::uintmax_t kFewestLargeBytes = 100'000; // files of so many pixels hardly have fewer

std::string fileOf(const QString& path) { return QFile::encodeName(path).toStdString(); }

PictureRead pictureOf(const Result<CIBitmap>& read)
{
    if (!read)
        return {.failure = read.failure()};
    PictureRead picture{.image = CIImage::fromBitmap(read.value()), .format = read.value().format()};
    makeReducedCopies(picture.image);
    return picture;
}

/// Large files of some formats are decoded in half the time or less when they are decoded no larger than that.
std::optional<CIImage> reducedPicture(const std::string& file, const ReadOptions& options)
{
    std::error_code error;
    if (std::filesystem::file_size(file, error) < kFewestLargeBytes || error)
        return {};
    ReaderProcess reader(file);
    const Result<PictureInfo> info = reader.readInfo();
    if (!info || !fileFormat(info.value().format).readsReduced
        || double(info.value().width) * info.value().height < kLarge)
        return {};
    const Result<CIBitmap> reduced = reader.readPicture(options);
    if (!reduced)
        return {};
    const CIBitmap& bitmap = reduced.value();
    const double width = info.value().width, height = info.value().height;
    return CIImage::fromBitmap(bitmap)
        .clampedToExtent()
        .transformed(CIAffineTransform::scaling(width / bitmap.width(), height / bitmap.height()))
        .cropped({0, 0, width, height});
}

} // namespace

PictureRead readPictureFile(const QString& path, const ReadOptions& options)
{
    const std::string file = fileOf(path);
    try {
        ReaderProcess reader(file);
        std::atomic<bool> isIncomplete = false;
        ReadOptions withParts = options;
        withParts.isIncomplete = &isIncomplete;
        PictureRead read = pictureOf(reader.readPicture(withParts));
        read.isIncomplete = isIncomplete;
        if (read.image)
            read.metadata = reader.readMetadata();
        return read;
    } catch (const std::bad_alloc&) {
        return {.failure = Failure{Reason::NoMemoryToOpen, fileOf(QFileInfo(path).fileName())}};
    }
}

PictureRead readPictureData(const QByteArray& data, const ReadOptions& options)
{
    try {
        const std::span content(data.data(), std::size_t(data.size()));
        return pictureOf(ReaderProcess(std::as_bytes(content)).readPicture(options));
    } catch (const std::bad_alloc&) {
        return {.failure = Failure{Reason::NoMemoryToOpen}};
    }
}

// --- in the background ---

/// Shared with the threads, which may outlive the object that waits for them.
struct PictureOpening::Job {
    std::atomic<bool> isGivenUp = false;
    std::atomic<float> progress = 0;
    std::mutex mutex; // guards what follows
    PictureOpening* opening = nullptr; // null when it is gone

    /// On the main thread, unless the opening is given up.
    void tell(std::function<void(PictureOpening&)> news)
    {
        const std::lock_guard lock(mutex);
        if (opening)
            QMetaObject::invokeMethod(
                opening, [to = opening, news = std::move(news)] { news(*to); }, Qt::QueuedConnection);
    }
};

PictureOpening::PictureOpening(const QString& path, int reducedSide, QObject* parent)
    : QObject(parent)
    , m_path(path)
    , m_job(std::make_shared<Job>())
{
    m_job->opening = this;
    if (reducedSide > 0)
        readReduced(reducedSide);
    readWhole();
}

PictureOpening::~PictureOpening() { giveUp(); }

void PictureOpening::giveUp()
{
    m_job->isGivenUp = true;
    imageio::giveUpLooseThread();
    const std::lock_guard lock(m_job->mutex);
    m_job->opening = nullptr;
}

double PictureOpening::progress() const { return double(m_job->progress.load(std::memory_order_relaxed)); }

void PictureOpening::readReduced(int side)
{
    imageio::runOnLooseThread([job = m_job, file = fileOf(m_path), side] {
        const auto reduced = reducedPicture(file, {.maxSide = side, .cancelled = &job->isGivenUp});
        if (reduced)
            job->tell([reduced](PictureOpening& opening) { emit opening.reducedRead(*reduced); });
    });
}

void PictureOpening::readWhole()
{
    imageio::runOnLooseThread([job = m_job, path = m_path] {
        const PictureRead read = readPictureFile(path, {.cancelled = &job->isGivenUp, .progress = &job->progress});
        job->tell([read](PictureOpening& opening) { emit opening.finished(read); });
    });
}

namespace {

/// Calls `read` on a thread of its own and waits until it is done or, soon, `control` is cancelled; then without
/// success.
PictureRead readUnlessCancelled(const std::function<PictureRead(const ReadOptions&)>& read, CIRenderControl& control)
{
    struct Shared {
        std::atomic<bool> isGivenUp = false;
        std::atomic<float> progress = 0;
        std::promise<PictureRead> result;
    };
    const auto shared = std::make_shared<Shared>();
    std::future<PictureRead> result = shared->result.get_future();
    imageio::runOnLooseThread([shared, read] {
        shared->result.set_value(read({.cancelled = &shared->isGivenUp, .progress = &shared->progress}));
    });
    while (result.wait_for(10ms) != std::future_status::ready) {
        control.setProgress(double(shared->progress));
        if (control.isCancelled()) {
            shared->isGivenUp = true;
            imageio::giveUpLooseThread();
            return {};
        }
    }
    return result.get();
}

} // namespace

void readBesideWindow(Document& document, const QString& title, std::function<PictureRead(const ReadOptions&)> read,
    std::function<void(const CIImage&)> take)
{
    document.work(
        {.title = title},
        [read = std::move(read)](WorkControl& control) { return readUnlessCancelled(read, control.rendering); },
        [&document, take = std::move(take)](const std::optional<PictureRead>& picture, bool isCancelled) {
            if (!isCancelled)
                take(document.take(picture.value_or(PictureRead())));
        });
}
