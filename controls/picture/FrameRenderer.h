// Renders what the picture view shows, on a thread of its own.
#pragma once

#include "platform/coreimage/CIContext.h"

#include <QImage>
#include <QObject>
#include <QRect>

#include <memory>
#include <optional>

/// A rectangle of an image on a grid of `scale` steps per picture pixel, y up: `left` and `top` count grid steps,
/// the lower edge is at `top - size.height()`.
struct FrameRequest {
    CIImage image;
    double scale = 1;
    int left = 0, top = 0;
    QSize size;

    bool operator==(const FrameRequest&) const = default;
};

/// A finished frame: `pixels` cover the request's rectangle, at a coarser grid when `divisor` is over 1.
struct Frame {
    FrameRequest request;
    int divisor = 1;
    QImage pixels; // ARGB32_Premultiplied
    int left = 0, top = 0; // of `pixels`, in steps of the coarser grid
    double scale() const { return request.scale / divisor; }
};

/// Renders the newest request; those it replaces are dropped. A render under way is cancelled for a newer request
/// only when a frame was finished recently, so that a long drag keeps showing progress. When full frames take
/// longer than a screen refresh, a coarser one comes first. All functions are called on the main thread.
class FrameRenderer : public QObject {
    Q_OBJECT
public:
    explicit FrameRenderer(std::shared_ptr<CIContext> context, QObject* parent = nullptr);
    ~FrameRenderer() override; // cancels and waits for the thread

    /// Asks for a frame. Asking again for the same one does nothing.
    void request(const FrameRequest&);
    /// There is nothing to see now: drops the newest request, so that asking for the same again renders it again.
    void forget();
    /// Waits until a frame of the newest request is finished, coarse or full; false when the time is over first.
    bool waitForAnyFrame(int milliseconds);
    /// Waits for the full frame of the newest request.
    bool waitForFrame(int milliseconds);
    /// The newest finished frame, once.
    std::optional<Frame> takeFrame();
    /// True when the first frame of the newest request is likely to be finished within `milliseconds`.
    bool isQuick(double milliseconds) const;
    bool isIdle() const;

signals:
    /// A finished frame waits to be taken.
    void frameReady();

private:
    struct Private;
    std::unique_ptr<Private> d;
};
