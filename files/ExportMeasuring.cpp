#include "files/ExportMeasuring.h"

#include "files/PlainPicture.h"
#include "platform/imageio/LooseThread.h"
#include "platform/imageio/PictureReader.h"

#include <atomic>
#include <new>
#include <utility>

namespace {

constexpr int kRestMilliseconds = 150; // while a slider moves, nothing is begun
constexpr int kLookMilliseconds = 30;

ExportMeasured measuredExport(const CIBitmap& picture, const ExportSettings& settings,
    const std::shared_ptr<const PictureMetadata>& metadata, CIRenderControl* control)
try {
    const CIBitmap bitmap = bitmapToExport(picture, settings);
    const Result<std::vector<std::byte>> encoded = encodeExport(bitmap, settings, metadata, control);
    if (!encoded)
        return {.failure = encoded.failure()};
    ExportMeasured result{.bytes = qint64(encoded->size()), .before = plainBitmap(bitmap)};
    const bool isDrawing = fileFormat(settings.options.format).isDrawing; // stores the pixels as they are
    const Result<CIBitmap> back =
        control->isCancelled() || isDrawing ? Failure{Reason::GivenUp} : readPicture(*encoded);
    result.after = back ? plainBitmap(*back) : result.before;
    return result;
} catch (const std::bad_alloc&) {
    return {.failure = Failure{Reason::NoMemoryToSave}};
}

} // namespace

/// Owned by its thread as well.
struct ExportMeasuring::Job {
    CIRenderControl control;
    ExportMeasured result;
    std::atomic<bool> isDone = false;
};

ExportMeasuring::ExportMeasuring(CIBitmap picture, std::shared_ptr<const PictureMetadata> metadata)
    : m_picture(std::move(picture))
    , m_metadata(std::move(metadata))
{
    connect(&m_timer, &QTimer::timeout, this, &ExportMeasuring::look);
}

ExportMeasuring::~ExportMeasuring()
{
    if (!m_job)
        return;
    m_job->control.cancel();
    imageio::giveUpLooseThread();
}

void ExportMeasuring::measure(const ExportSettings& settings)
{
    m_wanted = settings;
    if (m_job)
        m_job->control.cancel();
    m_timer.start(kRestMilliseconds);
}

void ExportMeasuring::look()
{
    m_timer.setInterval(kLookMilliseconds);
    if (m_job && !m_job->isDone)
        return;
    const std::shared_ptr<Job> done = std::exchange(m_job, nullptr);
    if (m_wanted)
        start(); // what is done is out of date
    else
        m_timer.stop();
    if (done && !m_job)
        emit measured(done->result);
}

/// One at a time: encoders take all processors, and some can't be stopped.
void ExportMeasuring::start()
{
    m_job = std::make_shared<Job>();
    imageio::runOnLooseThread(
        [job = m_job, picture = m_picture, metadata = m_metadata, settings = *std::exchange(m_wanted, {})] {
            job->result = measuredExport(picture, settings, metadata, &job->control);
            job->isDone = true;
        });
}
