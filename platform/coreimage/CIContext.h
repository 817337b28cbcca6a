// Renders images into bitmaps.
#pragma once

#include "platform/coreimage/CIImage.h"

#include <atomic>
#include <functional>
#include <memory>

/// Shared between the thread that renders and the one that waits for it.
class CIRenderControl {
public:
    void cancel() { m_cancelled.store(true, std::memory_order_relaxed); }
    bool isCancelled() const { return m_cancelled.load(std::memory_order_relaxed); }
    /// 0 to 1.
    double progress() const { return m_progress.load(std::memory_order_relaxed); }
    void setProgress(double p) { m_progress.store(p, std::memory_order_relaxed); }

private:
    std::atomic<bool> m_cancelled = false;
    std::atomic<double> m_progress = 0;
};

/// Renders rectangles of images, in tiles, on all cores. One context may be used from several threads. What does not
/// change between renders (reduced copies of bitmaps) is kept with the images, results never are.
class CIContext {
public:
    enum class Arithmetic {
        Batches, // the processor's vector registers
        Floats, // one number at a time: the reference that tests compare with
    };

    explicit CIContext(Arithmetic arithmetic = Arithmetic::Batches)
        : m_arithmetic(arithmetic)
    {
    }

    /// Renders the pixels of `rect` (picture pixels, rounded out to whole grid steps) at `scale` grid steps per
    /// picture pixel, into a new bitmap of `format`. Where the image has no pixels the result is transparent.
    /// A null bitmap when the rectangle is empty or infinite, memory runs out, or the render was cancelled.
    CIBitmap render(const CIImage&, const CIRect& rect, double scale = 1, CIFormat = CIFormat::RGBA8,
        CIAlpha = CIAlpha::Straight, CIRenderControl* = nullptr) const;

    /// The same into `target`, whose top left pixel is grid column `left`, grid row `top - 1` counted upwards
    /// (so its lower edge is `top - target.height()`). False when cancelled.
    bool renderInto(
        CIBitmap& target, int left, int top, const CIImage&, double scale = 1, CIRenderControl* = nullptr) const;

private:
    Arithmetic m_arithmetic;
};
