#include "controls/picture/FrameRenderer.h"

#include <algorithm>
#include <array>
#include <atomic>
#include <chrono>
#include <cmath>
#include <condition_variable>
#include <mutex>
#include <thread>

#include <QTimer>

namespace {

using Clock = std::chrono::steady_clock;
using Milliseconds = std::chrono::duration<double, std::milli>;

constexpr double kFrameTime = 16; // ms, one refresh of the screen
constexpr Milliseconds kIdleTime{25}; // without a newer request, the frame is refined
constexpr std::chrono::milliseconds kPatience{40}; // a first full frame may take this long before a coarse one
constexpr double kOverhead = 1; // ms of a render that don't depend on its size
constexpr int kCoarsest = 8;

int floorDivided(int a, int b) { return int(std::floor(double(a) / b)); }
int ceilDivided(int a, int b) { return int(std::ceil(double(a) / b)); }

} // namespace

struct FrameRenderer::Private {
    std::shared_ptr<CIContext> context;
    FrameRenderer* q = nullptr;
    QTimer impatience;

    mutable std::mutex mutex; // guards what follows
    std::condition_variable work, done;
    bool stop = false, pending = false, running = false;
    FrameRequest wanted;
    std::uint64_t newest = 0, finishedSerial = 0;
    bool finishedFull = false;
    std::optional<Frame> finished;
    CIRenderControl* control = nullptr; // of the render under way
    bool refining = false; // a coarser frame of the same request has been finished
    bool isFirstFullFrame = false; // nothing coarser came before
    bool hurry = false; // cancelled to start again with a coarser frame
    Clock::time_point started;
    double pixelTime = 0; // ms per pixel of the last full frame, or guessed from a coarser one; 0 is unknown

    std::array<std::shared_ptr<CIBitmap>, 3> buffers; // the worker's only
    std::thread worker;

    void run();
    void renderRequest(std::unique_lock<std::mutex>& lock);
    bool renderAt(int divisor, const FrameRequest& request, std::uint64_t serial, std::unique_lock<std::mutex>& lock);
    std::shared_ptr<CIBitmap> buffer(QSize size);
    double fullTime(const FrameRequest& r) const { return pixelTime * r.size.width() * r.size.height(); }
    int firstDivisor(const FrameRequest& request) const;
};

/// Halves the scale until a frame fits into a refresh.
int FrameRenderer::Private::firstDivisor(const FrameRequest& request) const
{
    int divisor = 1;
    for (double time = fullTime(request); time > kFrameTime && divisor < kCoarsest; time /= 4)
        divisor *= 2;
    return divisor;
}

/// A bitmap that no frame on screen uses any more: fresh memory of this size costs milliseconds.
std::shared_ptr<CIBitmap> FrameRenderer::Private::buffer(QSize size)
{
    std::shared_ptr<CIBitmap>* free = nullptr;
    for (auto& bitmap : buffers) {
        if (bitmap && bitmap.use_count() > 1)
            continue;
        free = &bitmap;
        if (bitmap && bitmap->width() == size.width() && bitmap->height() == size.height()) {
            std::atomic_thread_fence(std::memory_order_acquire); // after the last reader's release
            return bitmap;
        }
    }
    auto fresh = std::make_shared<CIBitmap>(size.width(), size.height(), CIFormat::BGRA8, CIAlpha::Premultiplied);
    if (free)
        *free = fresh;
    return fresh;
}

/// Called and left with the lock held. False when cancelled.
bool FrameRenderer::Private::renderAt(
    int divisor, const FrameRequest& request, std::uint64_t serial, std::unique_lock<std::mutex>& lock)
{
    CIRenderControl thisRender;
    control = &thisRender;
    started = Clock::now();
    lock.unlock();

    const int left = floorDivided(request.left, divisor), top = ceilDivided(request.top, divisor);
    const int right = ceilDivided(request.left + request.size.width(), divisor);
    const int bottom = floorDivided(request.top - request.size.height(), divisor);
    const auto start = Clock::now();
    Frame frame{request, divisor, {}, left, top};
    try {
        const auto bitmap = buffer({right - left, top - bottom});
        if (context->renderInto(*bitmap, left, top, request.image, request.scale / divisor, &thisRender)) {
            // The image keeps the bitmap alive.
            const auto* pixels = reinterpret_cast<const uchar*>(std::as_const(*bitmap).row(0));
            frame.pixels = QImage(
                pixels, bitmap->width(), bitmap->height(), qsizetype(bitmap->bytesPerRow()),
                QImage::Format_ARGB32_Premultiplied,
                [](void* keeper) { delete static_cast<std::shared_ptr<CIBitmap>*>(keeper); },
                new std::shared_ptr<CIBitmap>(bitmap));
        }
    } catch (const std::bad_alloc&) {
        // An empty frame: there is nothing to show, and trying again would fail again.
    }
    const double elapsed = Milliseconds(Clock::now() - start).count();

    lock.lock();
    control = nullptr;
    if (thisRender.isCancelled())
        return false;
    const double perPixels = divisor > 1 ? std::max(0.0, elapsed - kOverhead) * divisor * divisor : elapsed;
    pixelTime = perPixels / (double(request.size.width()) * request.size.height());
    finished = std::move(frame);
    finishedSerial = serial;
    finishedFull = divisor == 1;
    done.notify_all();
    lock.unlock();
    emit q->frameReady();
    lock.lock();
    return true;
}

void FrameRenderer::Private::renderRequest(std::unique_lock<std::mutex>& lock)
{
    const FrameRequest request = wanted;
    const std::uint64_t serial = newest;
    pending = hurry = refining = false;
    const int divisor = firstDivisor(request);
    isFirstFullFrame = divisor == 1;
    if (divisor > 1) {
        if (!renderAt(divisor, request, serial, lock) || stop)
            return;
        const bool quickAfterAll = fullTime(request) <= kFrameTime;
        if (pending || (!quickAfterAll && work.wait_for(lock, kIdleTime, [this] { return stop || pending; })))
            return;
        refining = true;
    }
    if (!renderAt(1, request, serial, lock) && hurry && !stop && serial == newest) {
        const double elapsed = Milliseconds(Clock::now() - started).count();
        pixelTime = std::max(pixelTime, 4 * elapsed / (double(request.size.width()) * request.size.height()));
        pending = true;
    }
}

void FrameRenderer::Private::run()
{
    std::unique_lock lock(mutex);
    while (!stop) {
        work.wait(lock, [this] { return stop || pending; });
        if (stop)
            return;
        running = true;
        renderRequest(lock);
        running = false;
        done.notify_all();
    }
}

FrameRenderer::FrameRenderer(std::shared_ptr<CIContext> context, QObject* parent)
    : QObject(parent)
    , d(new Private)
{
    d->context = std::move(context);
    d->q = this;
    d->impatience.setSingleShot(true);
    d->impatience.setInterval(kPatience);
    connect(&d->impatience, &QTimer::timeout, this, [this] {
        const std::lock_guard lock(d->mutex);
        const bool young = d->pending || (d->control && Clock::now() - d->started < kPatience);
        if (young) {
            d->impatience.start(); // it waited for an older render, or for a processor
        } else if (d->control && d->isFirstFullFrame && d->control->progress() < 0.6) {
            d->hurry = true;
            d->control->cancel();
        }
    });
    d->worker = std::thread([this] { d->run(); });
}

FrameRenderer::~FrameRenderer()
{
    {
        const std::lock_guard lock(d->mutex);
        d->stop = true;
        if (d->control)
            d->control->cancel();
    }
    d->work.notify_all();
    d->worker.join();
}

void FrameRenderer::request(const FrameRequest& request)
{
    const std::lock_guard lock(d->mutex);
    if (d->newest > 0 && d->wanted == request)
        return;
    d->wanted = request;
    ++d->newest;
    d->pending = true;
    // First frames always come to their end: something must be seen during a long drag.
    if (d->control && d->refining)
        d->control->cancel();
    d->impatience.start();
    d->work.notify_all();
}

void FrameRenderer::forget()
{
    const std::lock_guard lock(d->mutex);
    d->wanted = {};
    d->finishedSerial = ++d->newest; // nobody need wait
    d->finishedFull = true;
    d->finished.reset();
    d->pending = false;
    d->impatience.stop();
    if (d->control)
        d->control->cancel();
}

bool FrameRenderer::waitForAnyFrame(int milliseconds)
{
    std::unique_lock lock(d->mutex);
    return d->done.wait_for(
        lock, std::chrono::milliseconds(milliseconds), [this] { return d->finishedSerial == d->newest; });
}

bool FrameRenderer::waitForFrame(int milliseconds)
{
    std::unique_lock lock(d->mutex);
    return d->done.wait_for(lock, std::chrono::milliseconds(milliseconds),
        [this] { return d->finishedSerial == d->newest && d->finishedFull; });
}

std::optional<Frame> FrameRenderer::takeFrame()
{
    const std::lock_guard lock(d->mutex);
    return std::exchange(d->finished, std::nullopt);
}

bool FrameRenderer::isQuick(double milliseconds) const
{
    const std::lock_guard lock(d->mutex);
    const int divisor = d->firstDivisor(d->wanted);
    return d->fullTime(d->wanted) / (divisor * divisor) <= milliseconds;
}

bool FrameRenderer::isIdle() const
{
    const std::lock_guard lock(d->mutex);
    return !d->pending && !d->running;
}
